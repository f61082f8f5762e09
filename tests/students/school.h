// A small school for the tests of the register.
#pragma once

#include "register/students.h"
#include "students/student_records.h"
#include "support/school.h"

namespace students {

inline constexpr const char* computing = "计算机11001班";
inline constexpr const char* accounting = "会计01001班";

struct School : support::School {
  static constexpr const char* number = "20260001010001";

  School() {
    session.ComputerName = "收费一号机";
    add("rxxs", {{"rxxs", "统招"}});
    schoolClass("11001", computing, "计算机");
    schoolClass("01001", accounting, "会计");
  }

  // A student of the school in every table that copies one, and in the tables of graduates.
  void enrol(const std::string& xh, const std::string& xm) {
    add("xs", {{"xh", xh},
               {"xtbh", "11001001"},
               {"xm", xm},
               {"xb", "女"},
               {"bjmc", "计算机11001班"},
               {"mz", "回族"},
               {"csrq", base::Date{2008, 9, 1}},
               {"rxrq", base::Date{2024, 9, 2}},
               {"rxxs", "统招"},
               {"sfbz", base::Money::yuan(1500)},
               {"bz", "走读"},
               {"bsh", "2024-9-2 8:00:00"},
               {"xp", toBytes("GIF89a old")}});
    for (const std::string_view table : {"cjb", "jfjl", "qfjl", "xxfk", "tjs", "zsgl2", "bys_xs", "bys_jfjl"})
      for (int row = 0; row < 2; ++row) copyOf(table, xh, xm, "计算机11001班", "11001001");
  }
  std::int64_t rowOf(const std::string& xh = number) { return school::loadStudent(store, xh).mark(); }
  Student asShown(const std::string& xh = number) {
    auto row = school::loadStudent(store, xh);
    return textsOf(row);
  }
  std::string stored(std::string_view column, const std::string& xh = number) {
    return value(store::Sql("select * from xs where xh='") + xh + "'", column);
  }
  std::string photo(const std::string& xh = number) {
    return fromBytes(school::loadStudent(store, xh).get("xp").bytes());
  }
  std::string file(const std::string& name, const std::string& bytes) {
    const auto path = desktop.programFolder() / name;
    platform::writeFile(path, bytes);
    return path.string();
  }
};

inline Student complete(std::string xh = School::number) {
  Student student = newStudent({2026, 9, 7});
  student.xh = std::move(xh);
  student.xm = " 王小明 ";
  student.bjmc = "计算机11001班";
  student.rxxs = "统招";
  return student;
}

}  // namespace students
