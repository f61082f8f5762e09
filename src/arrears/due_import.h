// The import of amounts due: what the fee standards of a term ask of a range of students and nobody has paid yet
// becomes arrears.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "kit/desk.h"

namespace arrears {

struct DueImport {  // what the settings screen chooses
  enum class Range { School, Major, Class, Form };
  Range range = Range::School;
  std::string value;                // the class or the enrolment form
  std::string major_code;           // the first two characters of its students' system numbers
  std::optional<std::string> item;  // nothing: all items
  std::string term, lead, deadline;
};

// What is being done, and how many of the students are done.
using ImportProgress = std::function<void(const std::string& text, long long done, long long total)>;

// Adds the rows and returns how many; nothing when there are no students in the range. A pair of student and item that
// has a row of the term keeps it as it is, so a repeat adds only what is missing. Rows reach the disk some thousands
// at a time, each time after a look at what other desks have added: a fault leaves those before it, whole. More than
// 32767 rows raise a StoreError after the last one of them.
std::optional<int> importDue(kit::Desk& desk, const DueImport& chosen, const ImportProgress& tell);

}  // namespace arrears
