#include "collection/batch_collection.h"

#include "base/text.h"
#include "collection/payment_ledger.h"

namespace collection {

using store::RecordSet;

BatchResult collectBatch(store::Store& store, const Batch& batch, platform::Clock& clock) {
  BatchResult result;
  std::vector<Receipt> receipts;
  std::vector<std::int64_t> marks;
  for (const BatchPayment& payment : batch.payments) marks.push_back(payment.student);
  store::Unit unit(store);
  RecordSet students(store, "select * from xs");
  auto payment = batch.payments.begin();
  students.visit(marks, [&](bool there) {
    const BatchPayment& paid = *payment++;
    const auto copied = [&](const char* column) { return students.get(column).trimmed(); };
    if (!there || !base::sameText(copied("bjmc"), batch.bjmc)) return result.missing.push_back(paid.xm);
    receipts.push_back({.xh = copied("xh"),
                        .xm = copied("xm"),
                        .bjmc = copied("bjmc"),
                        .xq = batch.xq,
                        .xtbh = copied("xtbh"),
                        .rxxs = copied("rxxs"),
                        .jffs = {},
                        .skr = batch.skr,
                        .jfrq = batch.jfrq,
                        .lines = {{batch.sfxm, paid.je}},
                        .bz = "集中收费"});
    result.total += paid.je;
  });
  result.students = static_cast<int>(receipts.size());
  saveReceipts(store, receipts, clock);
  unit.finish();
  return result;
}

}  // namespace collection
