#include "collection/receipt_notes.h"

#include <utility>

#include "kit/validation.h"

namespace collection {

Formzctsf8::Line::Line(kit::Screen& screen, int place)
    : number(screen, "number" + std::to_string(place), "", kit::Entry::Shown),
      summary(screen, "summary" + std::to_string(place)),
      remark(screen, "remark" + std::to_string(place)) {
  number.set(std::to_string(place));
}

Formzctsf8::Formzctsf8(kit::Desk& all, ReceiptNotes proposed)
    : Screen(all, "Formzctsf8", "收据摘要及备注信息"), answer(std::move(proposed)) {
  print.onPress([this] { keepNotes(); });
  withoutNotes.onPress([this] { dropNotes(); });
}

void Formzctsf8::load() {
  const bool summaries = desk.session.receipt_style != 1;  // layout one has no column for them
  for (std::size_t index = 0; index < lines.size(); ++index) {
    lines[index].summary.set(answer.receipt_summaries[index]);
    lines[index].remark.set(answer.receipt_remarks[index]);
    lines[index].summary.enable(summaries);
  }
  (summaries ? lines[0].summary : lines[0].remark).focus();
}

void Formzctsf8::keepNotes() {
  std::vector<kit::Rule> rules;
  for (Line& line : lines)
    rules.push_back({&line.summary, kit::longerThan(line.summary, 15), "每一行摘要不能多于15个字符    ", "信息提示",
                     kit::Box::Warning});
  for (Line& line : lines)
    rules.push_back({&line.remark, kit::longerThan(line.remark, 30), "每一行备注不能多于30个字符    ", "信息提示",
                     kit::Box::Warning});
  if (!kit::holds(desk.person, rules)) return;
  for (std::size_t index = 0; index < lines.size(); ++index) {
    answer.receipt_summaries[index] = lines[index].summary.trimmed();
    answer.receipt_remarks[index] = lines[index].remark.trimmed();
  }
  close();
}

void Formzctsf8::dropNotes() {
  for (std::size_t index = 0; index < lines.size(); ++index) {
    answer.receipt_summaries[index].clear();
    answer.receipt_remarks[index].clear();
  }
  close();
}

}  // namespace collection
