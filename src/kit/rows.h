// What many screens do to the rows of a statement: read one column, set it, delete them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/record_set.h"

namespace kit {

// One column of every row, trimmed: the entries of a drop-down list, empty ones as they come.
std::vector<std::string> columnTexts(store::Store& store, const store::Sql& sql, std::string_view column);

// Both write in one unit of the main database.
void setEach(store::Store& store, const store::Sql& sql, std::string_view column, const store::Value& value);
void removeEach(store::Store& store, const store::Sql& sql);

}  // namespace kit
