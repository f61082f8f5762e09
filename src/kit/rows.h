// What many screens do to the rows of a statement: read one column, set it, delete them, number the next one.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/record_set.h"

namespace kit {

// One column of every row, trimmed: the entries of a drop-down list, empty ones as they come.
std::vector<std::string> columnTexts(store::Store& store, const store::Sql& sql, std::string_view column);

// Both write in one statement of the main database.
void setEach(store::Store& store, const store::Sql& sql, std::string_view column, const store::Value& value);
void removeEach(store::Store& store, const store::Sql& sql);

// Sets the columns of the row that is current or new, and writes it.
void writeRow(store::RecordSet& row, std::vector<std::pair<std::string_view, store::Value>> values);
// A new row of the set.
void addRow(store::RecordSet& set, std::vector<std::pair<std::string_view, store::Value>> values);

// The row that a person selected, as it stands now. Raises Fault::RowGone, in words, when it is there no more.
store::RecordSet rowAt(store::Store& store, std::string_view table, std::int64_t mark);
// The same without the words: false when it is gone.
bool standsStill(store::Store& store, std::string_view table, std::int64_t mark);
// What is told instead of writing over what another desk has changed since it was shown.
store::StoreError changedMeanwhile(const std::string& what);

// `count` numbers from `first` on, one after the other; those that stand in the column already are passed over, so that
// no two rows of a ledger ever bear one number. Good only inside the unit of work that writes them.
std::vector<std::string> freeNumbers(store::Store& store, std::string_view table, std::string_view column,
                                     const std::string& first, std::size_t count);

// The running number behind the last row of an ordered set: one more when its first eight characters are the day's
// digits, otherwise those digits and the first number of a day. Good only inside the unit of work that writes it.
std::string numberOfDay(store::RecordSet& ordered, std::string_view column, std::string_view day,
                        std::string_view first);

}  // namespace kit
