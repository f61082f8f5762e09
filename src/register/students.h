// Students as all rooms know them: found by number and by name, and the tables that carry a copy of them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "kit/desk.h"
#include "kit/member.h"
#include "store/record_set.h"

namespace school {

// The tables that copy a student's number, name, class and system number; changed and deleted with the student, in this
// order. Graduates and history keep what they were written with.
constexpr std::array<std::string_view, 6> studentTables = {"cjb", "jfjl", "qfjl", "xxfk", "tjs", "zsgl2"};

// The rows of a table that bear the number.
store::Sql ofStudent(std::string_view table, const std::string& xh);
// The row of a student: an empty set when there is none.
store::RecordSet loadStudent(store::Store& store, const std::string& xh);

// The one student of that name. Without one, or with several, `otherwise` is done and the person told; then nothing.
std::optional<store::RecordSet> findByName(kit::Desk& desk, const std::string& xm, const kit::Handler& otherwise);

}  // namespace school
