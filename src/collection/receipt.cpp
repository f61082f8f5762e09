#include "collection/receipt.h"

#include "base/text.h"

namespace collection {

ReceiptPrint reprintOf(store::RecordSet& payment, const kit::Session& session) {
  const auto copied = [&](const char* column) { return payment.get(column).trimmed(); };
  return {.print_fpbh = copied("fpbh"),
          .print_xh = copied("xh"),
          .print_xm = copied("xm"),
          .print_bjmc = copied("bjmc"),
          .print_xq = copied("xq"),
          .print_jffs = session.print_jffs,
          .print_jfrq = session.print_jfrq};
}

PrintedReceipt readReceipt(store::Store& store, const kit::Session& session, const ReceiptPrint& print,
                           base::DateTime now) {
  PrintedReceipt receipt{.school = session.SchoolName,
                         .fpbh = print.print_fpbh,
                         .xh = print.print_xh,
                         .xm = print.print_xm,
                         .bjmc = print.print_bjmc,
                         .xq = print.print_xq,
                         .jffs = print.print_jffs,
                         .jfrq = print.print_jfrq,
                         .rows = {},
                         .total = {},
                         .notes = print.notes,
                         .cashier = session.SessionUser,
                         .printed = now};
  store::RecordSet rows(store, store::Sql("select * from jfjl where fpbh='") + print.print_fpbh + "'");
  store::forEach(rows, [&](store::RecordSet& row) {
    receipt.rows.push_back({row.get("sfxm").trimmed(), row.get("je").money()});
    receipt.total += receipt.rows.back().je;
  });
  return receipt;
}

ReceiptLayout chooseLayout(const kit::Session& session, bool fee_normal_mode, std::size_t rows) {
  constexpr std::size_t linesOfTwo = 5, linesOfForm = 7;
  if (!fee_normal_mode) return ReceiptLayout::Two;
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
