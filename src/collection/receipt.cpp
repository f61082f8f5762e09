#include "collection/receipt.h"

#include "base/text.h"

namespace collection {

PrintedReceipt readReceipt(store::Store& store, const kit::Session& session, base::DateTime now) {
  PrintedReceipt receipt{.school = session.SchoolName,
                         .fpbh = session.print_fpbh,
                         .xh = session.print_xh,
                         .xm = session.print_xm,
                         .bjmc = session.print_bjmc,
                         .xq = session.print_xq,
                         .jffs = session.print_jffs,
                         .jfrq = session.print_jfrq,
                         .rows = {},
                         .total = {},
                         .remarks = session.receipt_remarks,
                         .summaries = session.receipt_summaries,
                         .cashier = session.SessionUser,
                         .printed = now};
  store::RecordSet rows(store, store::Sql("select * from jfjl where fpbh='") + session.print_fpbh + "'");
  store::forEach(rows, [&](store::RecordSet& row) {
    receipt.rows.push_back({row.get("sfxm").trimmed(), row.get("je").money()});
    receipt.total += receipt.rows.back().je;
  });
  return receipt;
}

ReceiptLayout chooseLayout(const kit::Session& session, std::size_t rows) {
  constexpr std::size_t linesOfTwo = 5, linesOfForm = 7;
  if (!session.fee_normal_mode) return ReceiptLayout::Two;
  switch (session.receipt_style) {
    case 1: return ReceiptLayout::One;
    // More rows than lines need layout one, whether switch_layout (zdqh) asks for it or not.
    case 2: return rows <= linesOfTwo ? ReceiptLayout::Two : ReceiptLayout::One;
    case 3:
      if (base::trim(session.custom_form) != "江西省学校收费专用收据") return ReceiptLayout::None;
      return rows <= linesOfForm ? ReceiptLayout::Preprinted : ReceiptLayout::One;
    default: return ReceiptLayout::None;
  }
}

std::string receiptTitle(const PrintedReceipt& receipt) { return "收据" + receipt.fpbh; }

}  // namespace collection
