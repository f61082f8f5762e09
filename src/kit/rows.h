// What many screens do to the rows of a statement: read one column, set it, delete them, number the next one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/record_set.h"

namespace kit {

// One column of every row, trimmed: the entries of a drop-down list, empty ones as they come.
std::vector<std::string> columnTexts(store::Store& store, const store::Sql& sql, std::string_view column);

// Both write in one statement of the main database.
void setEach(store::Store& store, const store::Sql& sql, std::string_view column, const store::Value& value);
void removeEach(store::Store& store, const store::Sql& sql);

// The running number behind the last row of an ordered set: one more when its first eight characters are the day's
// digits, otherwise those digits and the first number of a day. Good only inside the unit of work that writes it.
std::string numberOfDay(store::RecordSet& ordered, std::string_view column, std::string_view day,
                        std::string_view first);

}  // namespace kit
