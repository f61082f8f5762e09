// What has been taken per fee item: in one month, and in its year up to that month.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/store.h"

namespace reports {

struct Period {
  int statement_year = 0, statement_month = 0;
};

struct IncomeLine {
  std::string item;
  base::Money month, year;
};

struct Income {
  Period period;
  std::vector<IncomeLine> lines;
};

// A line for each fee item of the payments, in their order. The month adds up the same month of all years, the year
// does not: the office compares its months that way. onItem is told each item as its rows are reached.
Income computeIncome(store::Store& store, Period period, const std::function<void(const std::string& item)>& onItem);

// An amount as the statement's list shows it; empty when it is too long for its column.
std::string incomeCell(base::Money amount);

}  // namespace reports
