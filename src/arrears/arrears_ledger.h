// The book of what students still owe (qfjl), without a screen: new rows, payments, corrections. Each row is one amount
// due by one date for one fee item.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "store/record_set.h"

namespace arrears {

// The states of a row; a row that nothing has been paid on has the empty text.
constexpr const char* partlyPaid = "不足";
constexpr const char* settled = "结清";
constexpr const char* waived = "减免";

struct Instalment {
  base::Date bjrq;
  base::Money bjje;
};

// One fee item, owed in up to three instalments; a place can stay empty.
struct Debt {
  std::string sfxm;
  std::array<std::optional<Instalment>, 3> instalments;
};

struct ArrearsEntry {
  std::string xh, xm, bjmc, xtbh, xq, skr;
  std::string bsh;  // the computer's name at the front desk's panel, else the moment
  int qfts = 0;
  std::vector<Debt> debts;
};

// The number that follows the last row. Good only inside the unit of work that writes it.
std::string nextArrearsNumber(store::Store& store, base::Date today);

// Writes a row for each instalment, in one unit of work that also takes the numbers.
void addArrears(store::Store& store, const ArrearsEntry& entry, base::Date today);

// An open row as a person saw it.
struct OpenRow {
  std::int64_t mark = 0;
  std::string xh;
  base::Money open;
};

struct ArrearsPayment {
  OpenRow row;
  base::Money paid;
};

// Adds the payments to their rows and moves the states on, inside the caller's unit of work. Raises a StoreError, in
// words and before anything is written, when another desk has paid, waived or changed one of the rows meanwhile.
void settleArrears(store::Store& store, std::span<const ArrearsPayment> payments, base::Date today);

// Writes the columns given of the row with this number; raises Fault::RowGone when it is gone meanwhile.
void editArrears(store::Store& store, const std::string& lsh,
                 const std::vector<std::pair<std::string_view, store::Value>>& columns);

// The rows that a deletion takes.
store::Sql rowOf(const std::string& lsh);
store::Sql rowsOfStudent(const std::string& xh);
store::Sql settledRows();

}  // namespace arrears
