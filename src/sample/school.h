// The made-up school itself: majors, classes, students and what each class is charged for.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/date.h"
#include "base/money.h"
#include "sample/random.h"

namespace sample {

struct FeeItem {
  std::string_view code, name;
};
constexpr std::array<FeeItem, 10> feeItems{{{"101", "学费"},
                                            {"102", "书本费"},
                                            {"103", "住宿费"},
                                            {"104", "校服费"},
                                            {"105", "保险费"},
                                            {"106", "军训费"},
                                            {"107", "体检费"},
                                            {"108", "实习材料费"},
                                            {"109", "证书费"},
                                            {"110", "代办费"}}};
constexpr int tuition = 0, lodging = 2;  // places in feeItems

struct EnrolmentForm {
  std::string_view name;
  int percent;         // of the students
  int tuitionPercent;  // of the major's tuition
};
constexpr std::array<EnrolmentForm, 5> enrolmentForms{
    {{"统招", 58, 100}, {"自主招生", 22, 100}, {"对口升学", 10, 90}, {"联合办学", 6, 120}, {"转学", 4, 100}}};

struct Major {
  std::string code;
  std::string_view name;
  int tuition;  // in yuan a term
};

struct SchoolClass {
  std::size_t major;
  std::string code, name, teacher;
  int year;  // of entry
};

struct Student {
  std::string xh, xtbh, xm, mz, sfzhm, zzmm, lxdh, sjhm, jtzz, byxx, yhkh;
  std::string_view yzbm;
  std::size_t schoolClass, form;
  base::Date csrq, rxrq;
  bool male, lodger;
  int look;  // of the portrait
};

struct School {
  std::vector<Major> majors;
  std::vector<SchoolClass> classes;  // by code
  std::vector<Student> students;     // by number; each class has some

  const SchoolClass& classOf(const Student& student) const { return classes[student.schoolClass]; }
  const Major& majorOf(const SchoolClass& one) const { return majors[one.major]; }
  const Major& majorOf(const Student& student) const { return majorOf(classOf(student)); }

  base::Money charge(const SchoolClass& one, int item) const;
};

// The years of entry are the three school years up to the day; a school year begins in September.
int newestYear(base::Date today);
School makeSchool(Random& random, int students, base::Date today);

// The items that a class is charged for in its first term, and in the terms behind it; the first are paid first.
const std::vector<int>& chargedItems(bool firstTerm);

}  // namespace sample
