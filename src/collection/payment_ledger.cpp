#include "collection/payment_ledger.h"

#include <utility>

#include "arrears/arrears_ledger.h"
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

// Puts receipts under the numbers behind the ledger's last row. The numbers are read once and counted on: after a clock
// that was set back the last row stays another day's, and would give every receipt the same number.
class LedgerWriter {
 public:
  LedgerWriter(store::Store& store, base::DateTime now)
      : store_(store),
        now_(now),
        lsh_(nextRecordNumber(store, now.date)),
        fpbh_(nextReceiptNumber(store)),
        ledger_(store, Sql("select * from jfjl")) {}

  std::string write(const Receipt& receipt) {
    for (const PaidLine& line : receipt.lines) writeRow(receipt, line);
    if (receipt.settlesArrears)
      for (const PaidLine& line : receipt.lines) arrears::settleArrears(store_, line.arrearsLsh, line.je, now_.date);
    return std::exchange(fpbh_, base::nextNumber(fpbh_));
  }

 private:
  void writeRow(const Receipt& receipt, const PaidLine& line) {
    ledger_.addNew();
    ledger_.set("lsh", std::exchange(lsh_, base::nextNumber(lsh_)));
    ledger_.set("xh", receipt.xh);
    ledger_.set("xm", receipt.xm);
    ledger_.set("bjmc", receipt.bjmc);
    ledger_.set("xq", receipt.xq);
    ledger_.set("xtbh", receipt.xtbh);
    ledger_.set("jfrq", receipt.jfrq);
    ledger_.set("fpbh", fpbh_);
    ledger_.set("sfxm", line.sfxm);
    ledger_.set("je", line.je);
    ledger_.set("skr", receipt.skr);
    ledger_.set("bsh", now_.plain());
    ledger_.set("sftj", "");
    ledger_.set("rxxs", receipt.rxxs);
    if (receipt.jffs) ledger_.set("jffs", *receipt.jffs);
    if (receipt.bz) ledger_.set("bz", *receipt.bz);
    ledger_.update();
  }

  store::Store& store_;
  base::DateTime now_;
  std::string lsh_, fpbh_;
  RecordSet ledger_;
};

}  // namespace

std::string saveReceipt(store::Store& store, const Receipt& receipt, base::DateTime now) {
  store::Unit unit(store);
  const std::string fpbh = LedgerWriter(store, now).write(receipt);
  unit.finish();
  return fpbh;
}

void saveReceipts(store::Store& store, std::span<const Receipt> receipts, base::DateTime now) {
  store::Unit unit(store);
  LedgerWriter writer(store, now);
  for (const Receipt& receipt : receipts) writer.write(receipt);
  unit.finish();
}

}  // namespace collection
