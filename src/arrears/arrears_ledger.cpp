#include "arrears/arrears_ledger.h"

#include "base/text.h"
#include "kit/rows.h"

namespace arrears {

using store::RecordSet;
using store::Sql;

std::string nextArrearsNumber(store::Store& store, base::Date today) {
  RecordSet ledger(store, "select * from qfjl order by lsh");
  return kit::numberOfDay(ledger, "lsh", today.digits(), "001");
}

void addArrears(store::Store& store, const ArrearsEntry& entry, base::Date today) {
  store::Unit unit(store);
  const std::string first = nextArrearsNumber(store, today);
  RecordSet ledger(store, "select * from qfjl");
  int counter = 0;
  for (const Debt& debt : entry.debts) {
    for (std::size_t place = 0; place < debt.instalments.size(); ++place) {
      const auto& instalment = debt.instalments[place];
      if (!instalment) continue;
      if (place > 0) ++counter;
      ledger.addNew();
      ledger.set("lsh", base::nextNumber(first, counter));
      ledger.set("xh", entry.xh);
      ledger.set("xm", entry.xm);
      ledger.set("bjmc", entry.bjmc);
      ledger.set("xtbh", entry.xtbh);
      ledger.set("sfxm", debt.sfxm);
      ledger.set("qfrq", today);
      ledger.set("xq", entry.xq);
      ledger.set("bjrq", instalment->bjrq);
      ledger.set("bjje", instalment->bjje);
      ledger.set("sbjje", base::Money());
      ledger.set("clfs", "");
      ledger.set("qfts", entry.qfts);
      ledger.set("skr", entry.skr);
      ledger.set("bsh", entry.bsh);
      ledger.update();
    }
    ++counter;  // an item without a row leaves its number free
  }
  unit.finish();
}

void settleArrears(store::Store& store, const std::string& lsh, base::Money paid, base::Date today) {
  RecordSet row(store, rowOf(lsh));
  if (row.empty()) return;
  const base::Money due = row.get("bjje").money();
  const base::Money already = row.get("sbjje").money() + paid;
  row.set("sbjrq", today);
  row.set("sbjje", already);
  // An overpaid row keeps the state it had.
  if (due > already) row.set("clfs", partlyPaid);
  if (due == already) row.set("clfs", settled);
  row.update();
}

void editArrears(store::Store& store, const std::string& lsh,
                 const std::vector<std::pair<std::string_view, store::Value>>& columns) {
  store::Unit unit(store);
  RecordSet row(store, rowOf(lsh));
  for (const auto& [column, value] : columns) row.set(column, value);
  row.update();
  unit.finish();
}

Sql rowOf(const std::string& lsh) { return Sql("select * from qfjl where lsh='") + lsh + "'"; }
Sql rowsOfStudent(const std::string& xh) { return Sql("select * from qfjl where xh='") + xh + "'"; }
Sql settledRows() { return "select * from qfjl where clfs='结清'"; }

}  // namespace arrears
