#include "collection/payment_ledger.h"

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

std::string saveReceipt(store::Store& store, const Receipt& receipt, base::DateTime now) {
  store::Unit unit(store);
  const std::string firstLsh = nextRecordNumber(store, now.date);
  const std::string fpbh = nextReceiptNumber(store);
  RecordSet ledger(store, Sql("select * from jfjl"));
  int counter = 0;
  for (const PaidLine& line : receipt.lines) {
    ledger.addNew();
    ledger.set("lsh", base::nextNumber(firstLsh, counter++));
    ledger.set("xh", receipt.xh);
    ledger.set("xm", receipt.xm);
    ledger.set("bjmc", receipt.bjmc);
    ledger.set("xq", receipt.xq);
    ledger.set("xtbh", receipt.xtbh);
    ledger.set("jfrq", receipt.jfrq);
    ledger.set("fpbh", fpbh);
    ledger.set("sfxm", line.sfxm);
    ledger.set("je", line.je);
    ledger.set("skr", receipt.skr);
    ledger.set("bsh", now.plain());
    ledger.set("sftj", "");
    ledger.set("jffs", receipt.jffs);
    ledger.set("rxxs", receipt.rxxs);
    ledger.update();
  }
  if (receipt.settlesArrears)
    for (const PaidLine& line : receipt.lines) arrears::settleArrears(store, line.arrearsLsh, line.je, now.date);
  unit.finish();
  return fpbh;
}

}  // namespace collection
