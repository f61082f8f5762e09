// The figures of the statistics bars, as the texts of their lists. Each is computed by walks over the tables that it
// adds up, and from nothing that was kept before.
#pragma once

#include <string>
#include <vector>

#include "base/date.h"
#include "store/store.h"

namespace shell {

using Rows = std::vector<std::vector<std::string>>;

struct Statistics {
  Rows first, second;  // of the bar's two lists
  std::string totals;
};

Statistics studentStatistics(store::Store& store);  // by class, by major
Statistics paymentStatistics(store::Store& store);  // by fee item, what each operator has not submitted yet
// What classes owe; what was due in the month of today and what came in. The year does not count: the same month of all
// years adds up.
Statistics arrearsStatistics(store::Store& store, base::Date today);

}  // namespace shell
