// Made-up schools for the import of amounts due, full of the differences that a statement sees or overlooks: capitals,
// blanks, columns never set, standards given twice. And the import done plainly, a statement a row.
#pragma once

#include <string>
#include <vector>

#include "arrears/due_import.h"
#include "support/test_desk.h"

namespace arrears_tests {

using Due = arrears::DueImport;

void fillSchool(support::TestDesk& test, unsigned seed);
int importPlainly(support::TestDesk& test, const Due& chosen);  // rows added; -1 when there are no students
std::vector<std::string> book(support::TestDesk& test);         // every column of each arrears row, in stored order

}  // namespace arrears_tests
