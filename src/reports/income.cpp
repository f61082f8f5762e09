#include "reports/income.h"

#include <map>
#include <optional>

#include "base/text.h"

namespace reports {

using kit::Session;
using store::RecordSet;

namespace {

const std::string noItem = "\n";  // a key that no item has: rows without one are a line, whose amounts nobody asks for

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
  std::vector<Session::IncomeLine> lines;
  std::map<std::string, Sums> sums;  // by the stored item, without regard to case
  std::optional<std::string> group;
  RecordSet payments(store, "select sfxm,jfrq,je from jfjl order by sfxm");
  store::forEach(payments, [&](RecordSet& row) {
    const store::Value stored = row.get("sfxm");
    const std::string key = stored.isNull() ? noItem : base::upper(stored.text());
    if (group != key) {
      group = key;
      lines.push_back({stored.trimmed(), {}, {}});
      onItem(lines.back().item);
    } else if (stored.trimmed() < lines.back().item) {
      lines.back().item = stored.trimmed();  // a group bears the least of its spellings
    }
    if (const auto day = row.get("jfrq").date()) sums[key].add(row.get("je").money(), *day, period);
  });
  // An item is asked for by its trimmed name, so items that differ in blanks alone all show the plain one's amounts.
  for (Session::IncomeLine& line : lines) {
    const Sums& found = sums[base::upper(line.item)];
    line.month = found.month;
    line.year = found.year;
  }
  return lines;
}

std::string incomeCell(base::Money amount) {
  constexpr std::size_t widest = 12;
  const std::size_t length = amount.plain().size();
  return length > widest ? "" : std::string(widest + 1 - length, ' ') + amount.fixed2();
}

}  // namespace reports
