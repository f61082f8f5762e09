// The import of amounts due: what the fee standards of a term ask of a range of students and nobody has paid yet
// becomes arrears.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "kit/desk.h"

namespace arrears {

// What is being done, and how many of the students are behind it.
using ImportProgress = std::function<void(const std::string& text, long long done, long long total)>;

// Adds the rows and returns how many; nothing when there are no students in the range. A pair of student and item that
// has a row of the term keeps it as it is, so a repeat adds only what is missing. Rows reach the disk some thousands
// at a time: a fault leaves those before it, whole. More than 32767 rows raise a StoreError behind the last one of
// them.
std::optional<int> importDue(kit::Desk& desk, const kit::Session::DueImport& chosen, const ImportProgress& tell);

}  // namespace arrears
