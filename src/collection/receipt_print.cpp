#include "collection/receipt_print.h"

#include "collection/receipt_form.h"
#include "kit/at_exit.h"

namespace collection {

Formzctsf5::Formzctsf5(kit::Desk& all) : LoadingScreen(all, "Formzctsf5") { text.set("正在打印收据 ..."); }

void Formzctsf5::proceed() {
  std::optional<platform::Drawing> drawing;
  {
    // Whatever the store says: the next receipt starts without notes, and the screen goes before the preview stands.
    const kit::AtExit leaving([this] {
      desk.session.receipt_remarks.fill("");
      desk.session.receipt_summaries.fill("");
      close();
    });
    drawing = drawn();
  }
  if (drawing) desk.printer.show(*drawing);
}

std::optional<platform::Drawing> Formzctsf5::drawn() const {
  const PrintedReceipt receipt = readReceipt(desk.store, desk.session, desk.clock.now());
  switch (chooseLayout(desk.session, receipt.rows.size())) {
    case ReceiptLayout::One: return layoutOne(receipt);
    case ReceiptLayout::Two: return layoutTwo(receipt);
    case ReceiptLayout::Preprinted: return preprintedForm(receipt);
    case ReceiptLayout::None: break;
  }
  return std::nullopt;
}

platform::Drawing Formzctsf5::preprintedForm(const PrintedReceipt& receipt) const {
  Formzctsf2 form(desk);
  form.load();
  form.fill(receipt);
  return form.drawing();
}

}  // namespace collection
