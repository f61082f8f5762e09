#include "reports/income.h"

#include <map>

#include "base/text.h"
#include "store/record_set.h"

namespace reports {

using store::RecordSet;

namespace {

struct Sums {
  base::Money month, year;

  void add(base::Money amount, base::Date day, Period period) {
    if (day.month == period.statement_month) month += amount;
    if (day.year == period.statement_year && day.month <= period.statement_month) year += amount;
  }
};

}  // namespace

Income computeIncome(store::Store& store, Period period, const std::function<void(const std::string& item)>& onItem) {
  std::map<std::string, Sums> sums;  // by the stored item, without regard to case
  RecordSet payments(store, "select sfxm,jfrq,je from jfjl");
  store::forEach(payments, [&](RecordSet& row) {
    const store::Value item = row.get("sfxm");
    const auto day = row.get("jfrq").date();
    if (day && !item.isNull()) sums[base::upper(item.text())].add(row.get("je").money(), *day, period);
  });
  // An item is asked for by its trimmed name, so items that differ in blanks alone all show the plain one's amounts.
  Income income{period, {}};
  RecordSet items(store, "select sfxm from jfjl group by sfxm");
  store::forEach(items, [&](RecordSet& row) {
    const std::string item = row.get("sfxm").trimmed();
    onItem(item);
    const Sums& found = sums[base::upper(item)];
    income.lines.push_back({item, found.month, found.year});
  });
  return income;
}

std::string incomeCell(base::Money amount) {
  constexpr std::size_t widest = 12;
  const std::size_t length = amount.plain().size();
  return length > widest ? "" : std::string(widest + 1 - length, ' ') + amount.fixed2();
}

}  // namespace reports
