#include "collection/payment_ledger.h"

#include "base/text.h"
#include "kit/rows.h"

namespace collection {

using store::RecordSet;
using store::Sql;

std::string nextRecordNumber(store::Store& store, base::Date today) {
  RecordSet ledger(store, Sql("select * from jfjl order by lsh"));
  return kit::numberOfDay(ledger, "lsh", today.digits(), "0001");
}

std::string nextReceiptNumber(store::Store& store) {
  RecordSet ledger(store, Sql("select * from jfjl order by fpbh"));
  if (ledger.empty()) return "10000001";
  ledger.last();
  return base::nextNumber(ledger.get("fpbh").trimmed());
}

std::string offeredTerm(store::Store& store, base::Date today) {
  RecordSet ledger(store, Sql("select * from jfjl order by fpbh"));
  if (ledger.empty()) return base::defaultTerm(today);
  ledger.last();
  return ledger.get("xq").trimmed();
}

namespace {

void addRow(RecordSet& ledger, const Receipt& receipt, const PaidLine& line, const std::string& lsh,
            const std::string& fpbh, const base::DateTime& now) {
  std::vector<std::pair<std::string_view, store::Value>> row{
      {"lsh", lsh},           {"xh", receipt.xh},     {"xm", receipt.xm}, {"bjmc", receipt.bjmc}, {"xq", receipt.xq},
      {"xtbh", receipt.xtbh}, {"jfrq", receipt.jfrq}, {"fpbh", fpbh},     {"sfxm", line.sfxm},    {"je", line.je},
      {"skr", receipt.skr},   {"bsh", now.plain()},   {"sftj", ""},       {"rxxs", receipt.rxxs}};
  if (receipt.jffs) row.emplace_back("jffs", *receipt.jffs);
  if (receipt.bz) row.emplace_back("bz", *receipt.bz);
  kit::addRow(ledger, std::move(row));
}

std::vector<arrears::ArrearsPayment> arrearsOf(const Receipt& receipt) {
  std::vector<arrears::ArrearsPayment> payments;
  for (const PaidLine& line : receipt.lines) payments.push_back({line.owed, line.je});
  return payments;
}

}  // namespace

std::string saveReceipt(store::Store& store, const Receipt& receipt, platform::Clock& clock) {
  return saveReceipts(store, std::span(&receipt, 1), clock).front();
}

std::vector<std::string> saveReceipts(store::Store& store, std::span<const Receipt> receipts, platform::Clock& clock) {
  store::Unit unit(store);
  const base::DateTime now = clock.now();
  std::size_t lines = 0;
  for (const Receipt& receipt : receipts) {
    lines += receipt.lines.size();
    if (receipt.settlesArrears) arrears::settleArrears(store, arrearsOf(receipt), now.date);
  }
  const auto records = kit::freeNumbers(store, "jfjl", "lsh", nextRecordNumber(store, now.date), lines);
  const auto numbers = kit::freeNumbers(store, "jfjl", "fpbh", nextReceiptNumber(store), receipts.size());
  RecordSet ledger(store, "select * from jfjl");
  auto record = records.begin(), number = numbers.begin();
  for (const Receipt& receipt : receipts) {
    for (const PaidLine& line : receipt.lines) addRow(ledger, receipt, line, *record++, *number, now);
    ++number;
  }
  unit.finish();
  return numbers;
}

}  // namespace collection
