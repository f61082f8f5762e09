#include "students/student_records.h"

#include "base/text.h"
#include "kit/list.h"
#include "kit/rows.h"

namespace students {
namespace {

using store::RecordSet;
using store::Sql;
using store::Value;

constexpr int eighteenYears = 6570;  // in days, as the office counts them

enum class Kind { Text, Upper, BirthDate, EntryDate, Money, Notes };

struct Column {
  std::string_view name;
  StudentText text;
  Kind kind = Kind::Text;
};

constexpr std::array<Column, 21> columns = {{
    {"xh", &Student::xh},
    {"xtbh", &Student::xtbh},
    {"xm", &Student::xm},
    {"xb", &Student::xb},
    {"bjmc", &Student::bjmc},
    {"mz", &Student::mz},
    {"csrq", &Student::csrq, Kind::BirthDate},
    {"sfzhm", &Student::sfzhm, Kind::Upper},
    {"rxrq", &Student::rxrq, Kind::EntryDate},
    {"zzmm", &Student::zzmm},
    {"lxdh", &Student::lxdh},
    {"sjhm", &Student::sjhm},
    {"rxxs", &Student::rxxs},
    {"sfbz", &Student::sfbz, Kind::Money},
    {"jtzz", &Student::jtzz},
    {"yzbm", &Student::yzbm},
    {"eml", &Student::eml},
    {"bz", &Student::bz, Kind::Notes},
    {"byxx", &Student::byxx},
    {"yhkh", &Student::yhkh},
    {"zymc", &Student::zymc},
}};

Value stored(Kind kind, const std::string& text, base::Date today) {
  switch (kind) {
    case Kind::Upper: return base::upper(base::trim(text));
    case Kind::BirthDate: return base::Date::parse(text).value_or(today.plusDays(-eighteenYears));
    case Kind::EntryDate: return base::Date::parse(text).value_or(today);
    case Kind::Money: return base::Money::leading(base::trim(text));
    default: return base::trim(text);
  }
}

std::string shown(Kind kind, const Value& value) {
  switch (kind) {
    case Kind::Money: return value.money().fixed2();
    case Kind::BirthDate:
    case Kind::EntryDate: return kit::formatted(value, kit::Format::Date);
    case Kind::Notes: return std::string(notesIndent) + value.trimmed();
    default: return value.trimmed();
  }
}

void write(RecordSet& row, const Student& student, base::Date today) {
  for (const Column& column : columns) row.set(column.name, stored(column.kind, student.*column.text, today));
}

void writePhoto(RecordSet& row, const std::string& bytes) {
  if (!bytes.empty()) row.set("xp", toBytes(bytes));
}

// Rows keyed at the front desk carry the computer's name until they are submitted; the others the moment. Beside the
// other overviews the marker stays unset.
void mark(RecordSet& row, kit::Desk& desk) {
  if (desk.session.ConsolePanel == kit::Panel::None) row.set("bsh", desk.clock.now().plain());
  if (desk.session.ConsolePanel == kit::Panel::Students) row.set("bsh", desk.session.ComputerName);
}

Sql ofStudent(std::string_view table, const std::string& xh) {
  return Sql::table(table) + " where xh='" + base::trim(xh) + "'";
}

// What the dependent tables copy of a student.
void cascade(store::Store& store, const std::string& formerXh, const Student& student) {
  for (const std::string_view table : dependentTables) {
    RecordSet dependents(store, ofStudent(table, formerXh));
    store::forEach(dependents, [&](RecordSet& row) {
      row.set("xh", base::trim(student.xh));
      row.set("xm", base::trim(student.xm));
      row.set("bjmc", base::trim(student.bjmc));
      row.set("xtbh", base::trim(student.xtbh));
      row.update();
    });
  }
}

}  // namespace

RecordSet loadStudent(store::Store& store, const std::string& xh) { return RecordSet(store, ofStudent("xs", xh)); }

Student textsOf(RecordSet& row) {
  Student student;
  for (const Column& column : columns) student.*column.text = shown(column.kind, row.get(column.name));
  return student;
}

Student newStudent(base::Date today) {
  Student student;
  student.xb = "男";
  student.mz = "汉族";
  student.csrq = today.plusDays(-eighteenYears).plain();
  student.rxrq = today.plain();
  return student;
}

NumberProposal proposeNumber(store::Store& store, base::Date today) {
  RecordSet students(store, "select * from xs order by xh");
  if (students.empty()) return {std::to_string(today.year) + "0001010001", ""};
  students.last();
  const std::string next = base::nextNumber(students.get("xh").trimmed());
  return {next, next};
}

std::optional<ClassPick> classPicked(store::Store& store, const std::string& bjmc) {
  RecordSet found(store, Sql("select * from bjzl where bjmc='") + bjmc + "'");
  if (found.empty()) return std::nullopt;
  RecordSet classmates(store, Sql("select * from xs where bjmc='") + bjmc + "' order by xtbh");
  const std::string zymc = found.get("zymc").trimmed();
  if (classmates.empty()) return ClassPick{zymc, found.get("bjdh").trimmed() + "001"};
  classmates.last();
  // A step through a number: class codes that start with 0 lose it, and the lists sort by what stands here now.
  return ClassPick{zymc, base::nextNumber(classmates.get("xtbh").trimmed())};
}

std::optional<Refusal> addStudent(kit::Desk& desk, const Student& student, const Photo& photo) {
  if (auto refusal = validate(desk.store, student)) return refusal;
  const std::string bytes = photoBytes(photo, desk.desktop.programFolder());
  store::Unit unit(desk.store);
  RecordSet row = loadStudent(desk.store, student.xh);
  if (!row.empty()) return Refusal{"存在相同的学号！     ", "错误提示", &Student::xh};
  row.addNew();
  write(row, student, desk.clock.today());
  mark(row, desk);
  writePhoto(row, bytes);
  row.update();
  unit.finish();
  return std::nullopt;
}

bool keyChanged(const Student& former, const Student& student) {
  for (const StudentText key : {&Student::xh, &Student::xm, &Student::bjmc})
    if (base::trim(former.*key) != base::trim(student.*key)) return true;
  return false;
}

std::optional<Refusal> changeStudent(kit::Desk& desk, const std::string& formerXh, const Student& student,
                                     const Photo& photo) {
  if (auto refusal = validate(desk.store, student)) return refusal;
  const std::string bytes = photo.chosen ? photoBytes(photo, desk.desktop.programFolder()) : "";
  store::Unit unit(desk.store);
  RecordSet row = loadStudent(desk.store, formerXh);
  if (row.empty()) return Refusal{"该生学籍资料已不存在，无法修改，请刷新后再试 ！     ", "错误提示"};
  // By the row as it stands now: another computer may have renamed the student since the screen was opened.
  const bool reachesOthers = keyChanged(textsOf(row), student);
  write(row, student, desk.clock.today());
  writePhoto(row, bytes);
  row.update();
  if (reachesOthers) cascade(desk.store, formerXh, student);
  unit.finish();
  return std::nullopt;
}

bool deleteStudent(store::Store& store, const std::string& xh) {
  store::Unit unit(store);
  RecordSet row = loadStudent(store, xh);
  if (row.empty()) return false;
  row.remove();
  for (const std::string_view table : dependentTables) kit::removeEach(store, ofStudent(table, xh));
  unit.finish();
  return true;
}

}  // namespace students
