#include "collection/batch_collection.h"

#include "collection/payment_ledger.h"

namespace collection {

using store::RecordSet;
using store::Sql;

BatchResult collectBatch(store::Store& store, const Batch& batch, base::DateTime now) {
  BatchResult result;
  std::vector<Receipt> receipts;
  store::Unit unit(store);
  for (const BatchPayment& payment : batch.payments) {
    // By name, as the teacher's list has it: of two students of one name the first pays for both. Who is whom is put
    // right in the payment records.
    RecordSet student(store, Sql("select * from xs where bjmc='") + batch.bjmc + "' and xm='" + payment.xm + "'");
    if (student.empty()) {
      result.missing.push_back(payment.xm);
      continue;
    }
    const auto copied = [&](const char* column) { return student.get(column).trimmed(); };
    receipts.push_back({.xh = copied("xh"),
                        .xm = copied("xm"),
                        .bjmc = copied("bjmc"),
                        .xq = batch.xq,
                        .xtbh = copied("xtbh"),
                        .rxxs = copied("rxxs"),
                        .jffs = {},
                        .skr = batch.skr,
                        .jfrq = batch.jfrq,
                        .lines = {{batch.sfxm, payment.je, ""}},
                        .bz = "集中收费"});
    ++result.students;
    result.total += payment.je;
  }
  saveReceipts(store, receipts, now);
  unit.finish();
  return result;
}

}  // namespace collection
