#include "students/class_transfer.h"

#include "base/text.h"
#include "kit/rows.h"
#include "students/student_records.h"

namespace students {

using store::RecordSet;
using store::Sql;

void transferStudents(store::Store& store, const std::string& fromClass, const std::string& toClass,
                      const std::vector<std::string>& names,
                      const std::function<void(const std::string& name)>& visit) {
  const auto named = [&](std::string_view table, const std::string& name) {
    return Sql::table(table) + " where bjmc='" + fromClass + "' and xm='" + name + "'";
  };
  store::Unit unit(store);
  // Without a to-class the students leave theirs and stand in none until the register gives them one.
  ClassPick to = classPicked(store, toClass).value_or(ClassPick{});
  for (const std::string& name : names) {
    RecordSet student(store, named("xs", name));
    if (student.empty()) continue;
    if (visit) visit(name);
    student.set("bjmc", toClass);
    student.set("zymc", to.zymc);
    student.set("xtbh", to.xtbh);
    student.update();
    // By class and name, not by number as a change of the record: rows keyed without a number move too.
    for (const std::string_view table : dependentTables) {
      kit::setEach(store, named(table, name), "xtbh", to.xtbh);
      kit::setEach(store, named(table, name), "bjmc", toClass);
    }
    to.xtbh = base::nextNumber(to.xtbh);
  }
  unit.finish();
}

}  // namespace students
