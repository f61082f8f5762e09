// The register of enrolled students (xs), without a screen: numbers, validation, and the writes with what they draw
// after them in the tables that carry a copy of the student.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "kit/desk.h"
#include "kit/editing.h"
#include "store/record_set.h"
#include "students/photo.h"

namespace students {

// The texts of a record as they stand on the edit screen; named and ordered as the columns.
struct Student {
  std::string xh, xtbh, xm, xb, bjmc, mz, csrq, sfzhm, rxrq, zzmm, lxdh, sjhm, rxxs, sfbz, jtzz, yzbm, eml, bz, byxx,
      yhkh, zymc;
};
using StudentText = std::string Student::*;

constexpr int eighteenYears = 6570;  // in days, as the office counts them

constexpr std::string_view notesIndent = "    ";  // stands before the notes wherever they are shown

Student textsOf(store::RecordSet& row);  // as the edit screen shows them
Student newStudent(base::Date today);    // what an empty screen holds

struct NumberProposal {
  std::string number;    // stands in the field of a new student
  std::string proposal;  // offered when a number has the wrong length; empty in an empty register
};
NumberProposal proposeNumber(store::Store& store, base::Date today);

// Why a record was not written: told to the person; the focus goes to the field, when it is one field's fault.
struct Refusal {
  std::string text, title;
  StudentText field = nullptr;
  bool wrongLength = false;  // the number's length is not the school's: a number is offered
};

// The first test that fails, in the order of the screen.
std::optional<Refusal> validate(store::Store& store, const Student& student);
// panel: from where; the marker of the row tells which rows were keyed in the students' overview.
std::optional<Refusal> addStudent(kit::Desk& desk, const Student& student, const Photo& photo,
                                  kit::Panel panel = kit::Panel::None);

// Whether number, name or class differ: then the change reaches all that belongs to the student.
bool keyChanged(const Student& former, const Student& student);
// Writes what differs from the student as shown. Both raise a StoreError in words, and write nothing, when the row has
// gone, or another desk has changed who the student is or what is about to be written.
std::optional<Refusal> changeStudent(kit::Desk& desk, std::int64_t row, const Student& former, const Student& student,
                                     const Photo& photo);
void deleteStudent(store::Store& store, std::int64_t row, const Student& shown);

}  // namespace students
