#include "qt/printing/paper_question.h"

#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "qt/printing/drawing_painter.h"

namespace qt {
namespace {

constexpr const char* title = "打印提示";

// What is to be done on a paper of another size.
std::optional<OtherPaper> askPaper(printing::Size own, const PrintSettings& settings, bool holds, QWidget* parent) {
  const int percent = qRound(printing::fitted(own, settings.paper()).scale * 100);
  QMessageBox box(QMessageBox::Question, title,
                  "版面是 " + sizeText(own) + "，选择的纸张是 " + settings.paperText() + "。\n" +
                      (holds ? "按原尺寸打印时，内容印在纸张的一角。" : "按原尺寸打印时，超出纸张的内容印不出来！"),
                  QMessageBox::NoButton, parent);
  auto* fit = box.addButton(QString("适应纸张（%1%）").arg(percent), QMessageBox::AcceptRole);
  auto* ownSize = box.addButton("按原尺寸继续", QMessageBox::AcceptRole);
  auto* stop = box.addButton("停止", QMessageBox::RejectRole);
  box.setDefaultButton(holds ? ownSize : fit);
  box.setEscapeButton(stop);
  box.exec();
  if (box.clickedButton() == fit) return OtherPaper::Fit;
  if (box.clickedButton() == ownSize) return OtherPaper::OwnSize;
  return std::nullopt;
}

bool askEdge(QWidget* parent) {
  QMessageBox box(QMessageBox::Warning, title, "按现在的右移和下移，一部分内容落在纸张外面，印不出来！",
                  QMessageBox::NoButton, parent);
  const auto* on = box.addButton("仍然打印", QMessageBox::AcceptRole);
  auto* stop = box.addButton("停止", QMessageBox::RejectRole);
  box.setDefaultButton(stop);
  box.setEscapeButton(stop);
  box.exec();
  return box.clickedButton() == on;
}

bool holdsInk(const printing::Placing& placing, const platform::Drawing& drawing) {
  return std::ranges::all_of(drawing.pages, [&](const platform::Page& page) {
    const QRectF ink = inkOf(page);
    return printing::holdsPart(placing, {ink.left(), ink.top(), ink.right(), ink.bottom()});
  });
}

}  // namespace

std::optional<Placed> placed(const platform::Drawing& drawing, const PrintSettings& settings, QWidget* parent) {
  const printing::Size own{drawing.width, drawing.height}, paper = settings.paper();
  Placed result{printing::inOwnSize(own, paper), OtherPaper::Ask};
  const bool holds = printing::holdsSheet(result.placing, own);
  if (!printing::sameSheet(own, paper)) {
    result.said = settings.otherPaper();
    // Content that would be lost is told every time.
    if (result.said == OtherPaper::Ask || (result.said == OtherPaper::OwnSize && !holds)) {
      const auto said = askPaper(own, settings, holds, parent);
      if (!said) return std::nullopt;
      result.said = *said;
    }
    if (result.said == OtherPaper::Fit) result.placing = printing::fitted(own, paper);
  }
  const printing::Placing unmoved = result.placing;
  result.placing.right = settings.right();
  result.placing.down = settings.down();
  const bool moved = settings.right() != 0 || settings.down() != 0;
  if (moved && !holdsInk(result.placing, drawing) && holdsInk(unmoved, drawing) && !askEdge(parent))
    return std::nullopt;
  return result;
}

}  // namespace qt
