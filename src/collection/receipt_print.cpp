#include "collection/receipt_print.h"

#include <utility>

#include "collection/receipt_form.h"

namespace collection {

Formzctsf5::Formzctsf5(kit::Desk& all, ReceiptPrint print)
    : LoadingScreen(all, "Formzctsf5"), print_(std::move(print)) {
  text.set("正在打印收据 ...");
}

void Formzctsf5::proceed() {
  close();  // whatever the store says: the notice goes before the preview stands
  if (const auto drawing = drawn()) desk.printer.show(*drawing);
}

std::optional<platform::Drawing> Formzctsf5::drawn() const {
  const PrintedReceipt receipt = readReceipt(desk.store, desk.session, print_, desk.clock.now());
  switch (chooseLayout(desk.session, print_.fee_normal_mode, receipt.rows.size())) {
    case ReceiptLayout::One: return layoutOne(receipt);
    case ReceiptLayout::Two: return layoutTwo(receipt);
    case ReceiptLayout::Preprinted: return preprintedForm(receipt);
    case ReceiptLayout::None: break;
  }
  return std::nullopt;
}

platform::Drawing Formzctsf5::preprintedForm(const PrintedReceipt& receipt) const {
  Formzctsf2 form(desk, print_);
  form.load();
  form.fill(receipt);
  return form.drawing();
}

}  // namespace collection
