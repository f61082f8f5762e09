#include "collection/receipt_form.h"

#include <algorithm>
#include <cstdlib>

#include "base/text.h"
#include "collection/receipt_marks.h"

namespace collection {
namespace {

constexpr int lineHeight = 180, gap = 60;  // twips
constexpr std::size_t formLines = 7;

double millimetres(int twips) { return twips * 25.4 / 1440; }

// The label is then tall enough to wrap into two lines, and keeps its last line where it was.
void moveUp(FormLabel& label) {
  label.top -= lineHeight;
  label.lines = 2;
}

}  // namespace

Formzctsf2::Formzctsf2(kit::Desk& desk, const ReceiptPrint& print)
    : Screen(desk, "Formzctsf2", "江西省学校专用收据"), print_bjmc(print.print_bjmc), print_xq(print.print_xq) {
  for (int line = 0; line < static_cast<int>(formLines); ++line) {
    const int top = 2640 + 240 * line;
    Labelsfxm.emplace_back(*this, "Labelsfxm" + std::to_string(line), 960, top, 1050);
    Labelje.emplace_back(*this, "Labelje" + std::to_string(line), 5400, top, 735);
    Labelje.back().amount = true;
  }
  total.amount = true;
  notice.size = 7.5;
  notice.set("电脑打印 手写无效");
}

void Formzctsf2::load() {
  if (desk.session.receipt_style != 3) return;
  if (base::length(print_bjmc) > 8) moveUp(Labelbjmc);
  if (base::length(print_xq) > 9) moveUp(Labelxq);
}

void Formzctsf2::fill(const PrintedReceipt& receipt) {
  for (std::size_t line = 0; line < formLines; ++line) {
    const bool filled = line < receipt.rows.size();
    Labelsfxm[line].set(filled ? receipt.rows[line].sfxm : "");
    Labelje[line].set(filled ? receipt.rows[line].je.fixed2() : "");
  }
  Labelfpbh.set(receipt.fpbh);
  Labeljfrq.set(receipt.jfrq);
  Labeljffs.set(receipt.jffs);
  Labelxm.set(receipt.xm);
  Labelxh.set(receipt.xh);
  Labelbjmc.set(receipt.bjmc);
  Labelxq.set(receipt.xq);
  words.set(base::AmountInWords(receipt.total < base::Money() ? -receipt.total : receipt.total));
  total.set(receipt.total.fixed2());
  cashier.set(receipt.cashier);
  title_ = receiptTitle(receipt);
}

std::vector<const FormLabel*> Formzctsf2::labels() const {
  std::vector<const FormLabel*> all;
  for (const kit::Member* member : members())
    if (const auto* label = dynamic_cast<const FormLabel*>(member)) all.push_back(label);
  return all;
}

// A label of one line is as wide as its text, up to the next label to its right; a taller one wraps in its own width.
double Formzctsf2::room(const FormLabel& label) const {
  if (label.lines > 1) return millimetres(label.width);
  double right = paperWidth;
  for (const FormLabel* other : labels())
    if (other->left > label.left && std::abs(other->top - label.top) <= lineHeight)
      right = std::min(right, millimetres(other->left));
  return right - millimetres(label.left + gap);
}

platform::Drawing Formzctsf2::drawing() const {
  platform::Drawing drawing{
      .title = title_, .width = paperWidth, .height = paperHeight, .pages = {{}}, .kind = platform::Kind::Receipt};
  for (const FormLabel* label : labels())
    put(drawing.pages.front(),
        {millimetres(label->left), millimetres(label->top), label->size, room(*label), platform::Face::Song,
         label->lines, label->amount ? millimetres(label->left + label->width) : 0},
        label->text());
  return drawing;
}

}  // namespace collection
