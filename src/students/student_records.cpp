#include "students/student_records.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "kit/list.h"
#include "kit/rows.h"
#include "register/students.h"

namespace students {
namespace {

using store::RecordSet;
using store::Sql;
using store::Value;

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

bool differ(const Student& one, const Student& other, StudentText text) {
  return base::trim(one.*text) != base::trim(other.*text);
}

constexpr StudentText keys[] = {&Student::xh, &Student::xm, &Student::bjmc};

// Who the student is must stand as it was shown, and so must what is about to be written.
void mustStandAsShown(RecordSet& row, const Student& former, const Student& student) {
  const Student now = textsOf(row);
  const bool changed = keyChanged(now, former) || std::ranges::any_of(columns, [&](const Column& column) {
                         return differ(student, former, column.text) && differ(now, former, column.text);
                       });
  if (changed) throw kit::changedMeanwhile("该生学籍资料");
}

void writePhoto(RecordSet& row, const std::string& bytes) {
  if (!bytes.empty()) row.set("xp", toBytes(bytes));
}

// Rows keyed at the front desk carry the computer's name until they are submitted; the others the moment. Beside the
// other overviews the marker stays unset.
void mark(RecordSet& row, kit::Desk& desk, kit::Panel panel) {
  if (panel == kit::Panel::None) row.set("bsh", desk.clock.now().plain());
  if (panel == kit::Panel::Students) row.set("bsh", desk.session.ComputerName);
}

// What changed of what the dependent tables copy; the number last, for they are found by it.
void cascade(store::Store& store, const Student& former, const Student& student) {
  constexpr std::pair<std::string_view, StudentText> copies[] = {
      {"xm", &Student::xm}, {"bjmc", &Student::bjmc}, {"xtbh", &Student::xtbh}, {"xh", &Student::xh}};
  for (const std::string_view table : school::studentTables)
    for (const auto& [column, text] : copies)
      if (differ(student, former, text))
        kit::setEach(store, school::ofStudent(table, former.xh), column, base::trim(student.*text));
}

}  // namespace

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

namespace {

std::optional<Refusal> taken(store::Store& store, const std::string& xh) {
  if (school::loadStudent(store, xh).empty()) return std::nullopt;
  return Refusal{"存在相同的学号！     ", kit::wrongInput, &Student::xh};
}

}  // namespace

std::optional<Refusal> addStudent(kit::Desk& desk, const Student& student, const Photo& photo, kit::Panel panel) {
  if (auto refusal = validate(desk.store, student)) return refusal;
  const std::string bytes = photoBytes(photo, desk.desktop.programFolder());
  store::Unit unit(desk.store);
  if (auto refusal = taken(desk.store, student.xh)) return refusal;
  RecordSet row(desk.store, "select * from xs");
  row.addNew();
  for (const Column& column : columns)
    row.set(column.name, stored(column.kind, student.*column.text, desk.clock.today()));
  mark(row, desk, panel);
  writePhoto(row, bytes);
  row.update();
  unit.finish();
  return std::nullopt;
}

bool keyChanged(const Student& former, const Student& student) {
  return std::ranges::any_of(keys, [&](StudentText key) { return differ(former, student, key); });
}

std::optional<Refusal> changeStudent(kit::Desk& desk, std::int64_t mark, const Student& former, const Student& student,
                                     const Photo& photo) {
  if (auto refusal = validate(desk.store, student)) return refusal;
  const std::string bytes = photo.chosen ? photoBytes(photo, desk.desktop.programFolder()) : "";
  store::Unit unit(desk.store);
  RecordSet row = kit::rowAt(desk.store, "xs", mark);
  mustStandAsShown(row, former, student);
  // The register takes a number once: two students of one number could never be told apart again.
  if (differ(student, former, &Student::xh))
    if (auto refusal = taken(desk.store, student.xh)) return refusal;
  for (const Column& column : columns)
    if (differ(student, former, column.text))
      row.set(column.name, stored(column.kind, student.*column.text, desk.clock.today()));
  writePhoto(row, bytes);
  row.update();
  cascade(desk.store, former, student);
  unit.finish();
  return std::nullopt;
}

void deleteStudent(store::Store& store, std::int64_t mark, const Student& shown) {
  store::Unit unit(store);
  RecordSet row = kit::rowAt(store, "xs", mark);
  mustStandAsShown(row, shown, shown);
  row.remove();
  for (const std::string_view table : school::studentTables) kit::removeEach(store, school::ofStudent(table, shown.xh));
  unit.finish();
}

}  // namespace students
