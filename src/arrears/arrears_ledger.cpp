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

namespace {

// The row as it is now, when it is still what the person saw.
RecordSet unchanged(store::Store& store, const OpenRow& seen) {
  const auto refuse = [](const std::string& what) {
    throw store::StoreError(store::Fault::RowGone, what + "，请重新加载欠费后再收费！");
  };
  RecordSet row(store, "select * from qfjl");
  if (!row.goTo(seen.mark)) refuse("要补交的欠费记录已被其他计算机删除");
  const std::string debt = "“" + row.get("sfxm").trimmed() + "”的欠费已由其他计算机";
  const base::Money open = row.get("bjje").money() - row.get("sbjje").money();
  if (row.get("clfs").trimmed() == waived) refuse(debt + "减免");
  if (open <= base::Money()) refuse(debt + "结清");
  if (open != seen.open || row.get("xh").trimmed() != seen.xh) refuse(debt + "改动");
  return row;
}

void addPayment(RecordSet& row, base::Money paid, base::Date today) {
  const base::Money due = row.get("bjje").money();
  const base::Money already = row.get("sbjje").money() + paid;
  row.set("sbjrq", today);
  row.set("sbjje", already);
  // An overpaid row keeps the state it had.
  if (due > already) row.set("clfs", partlyPaid);
  if (due == already) row.set("clfs", settled);
  row.update();
}

}  // namespace

void settleArrears(store::Store& store, std::span<const ArrearsPayment> payments, base::Date today) {
  std::vector<RecordSet> rows;
  for (const ArrearsPayment& payment : payments) rows.push_back(unchanged(store, payment.row));
  for (std::size_t index = 0; index < rows.size(); ++index) addPayment(rows[index], payments[index].paid, today);
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
