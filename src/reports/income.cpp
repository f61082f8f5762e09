#include "reports/income.h"

#include <map>

#include "base/text.h"

namespace reports {

using kit::Session;
using store::RecordSet;

namespace {

struct Sums {
  base::Money month, year;

  void add(base::Money amount, base::Date day, Period period) {
    if (day.month == period.month) month += amount;
    if (day.year == period.year && day.month <= period.month) year += amount;
  }
};

}  // namespace

std::vector<Session::IncomeLine> computeIncome(store::Store& store, Period period,
                                               const std::function<void(const std::string& item)>& onItem) {
  std::map<std::string, Sums> sums;  // by the stored item, without regard to case
  RecordSet payments(store, "select sfxm,jfrq,je from jfjl");
  store::forEach(payments, [&](RecordSet& row) {
    const store::Value item = row.get("sfxm");
    const auto day = row.get("jfrq").date();
    if (day && !item.isNull()) sums[base::upper(item.text())].add(row.get("je").money(), *day, period);
  });
  // An item is asked for by its trimmed name, so items that differ in blanks alone all show the plain one's amounts.
  std::vector<Session::IncomeLine> lines;
  RecordSet items(store, "select sfxm from jfjl group by sfxm");
  store::forEach(items, [&](RecordSet& row) {
    const std::string item = row.get("sfxm").trimmed();
    onItem(item);
    const Sums& found = sums[base::upper(item)];
    lines.push_back({item, found.month, found.year});
  });
  return lines;
}

std::string incomeCell(base::Money amount) {
  constexpr std::size_t widest = 12;
  const std::size_t length = amount.plain().size();
  return length > widest ? "" : std::string(widest + 1 - length, ' ') + amount.fixed2();
}

}  // namespace reports
