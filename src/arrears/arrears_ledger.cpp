#include "arrears/arrears_ledger.h"

#include "base/text.h"
#include "kit/rows.h"

namespace arrears {

using store::RecordSet;
using store::Sql;

namespace {

// How many numbers an entry runs through: every instalment has one, and an item without any leaves one free.
std::size_t numbersOf(const ArrearsEntry& entry) {
  std::size_t count = entry.debts.size();
  for (const Debt& debt : entry.debts) count += debt.instalments.size() - 1;
  return count;
}

}  // namespace

void addArrears(store::Store& store, const ArrearsEntry& entry, platform::Clock& clock) {
  store::Unit unit(store);
  const base::Date today = clock.today();
  RecordSet ledger(store, "select * from qfjl order by lsh");
  const std::string first = kit::numberOfDay(ledger, "lsh", today.digits(), "001");
  const auto numbers = kit::freeNumbers(store, "qfjl", "lsh", first, numbersOf(entry));
  std::size_t counter = 0;
  for (const Debt& debt : entry.debts) {
    for (std::size_t place = 0; place < debt.instalments.size(); ++place) {
      const auto& instalment = debt.instalments[place];
      if (!instalment) continue;
      if (place > 0) ++counter;
      kit::addRow(ledger, {{"lsh", numbers[counter]},
                           {"xh", entry.xh},
                           {"xm", entry.xm},
                           {"bjmc", entry.bjmc},
                           {"xtbh", entry.xtbh},
                           {"sfxm", debt.sfxm},
                           {"qfrq", today},
                           {"xq", entry.xq},
                           {"bjrq", instalment->bjrq},
                           {"bjje", instalment->bjje},
                           {"sbjje", base::Money()},
                           {"clfs", ""},
                           {"qfts", entry.qfts},
                           {"skr", entry.skr},
                           {"bsh", entry.bsh}});
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

Sql rowsOfStudent(const std::string& xh) { return Sql("select * from qfjl where xh='") + xh + "'"; }

AskedArrears::AskedArrears(store::Store& store, std::int64_t mark) : store_(store), mark_(mark), asked_(standing()) {}
AskedArrears::AskedArrears(store::Store& store, Sql rows) : store_(store), rows_(std::move(rows)), asked_(standing()) {}

void AskedArrears::walk(const std::function<void(RecordSet&)>& visit) {
  if (mark_ == 0) {
    RecordSet set(store_, rows_);
    return store::forEach(set, visit);
  }
  RecordSet row(store_, "select * from qfjl");
  if (row.goTo(mark_)) visit(row);
}

std::string AskedArrears::standing() {
  std::string all;
  count_ = 0;
  walk([&](RecordSet& row) {
    ++count_;
    all += std::to_string(row.mark());
    for (const char* column : {"lsh", "xh", "bjje", "sbjje", "clfs"}) all += '|' + row.get(column).text();
    all += '\n';
  });
  return all;
}

bool AskedArrears::each(const std::function<void(RecordSet&)>& visit) {
  store::Unit unit(store_);
  const bool same = standing() == asked_;
  if (same) walk(visit);
  unit.finish();
  return same;
}

}  // namespace arrears
