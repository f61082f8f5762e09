#include "qt/printing/page_view.h"

#include <QPainter>

#include "qt/printing/drawing_painter.h"
#include "qt/theme.h"

namespace qt {

constexpr int border = 24;  // pixels of grey round the paper
constexpr int shadow = 3;

PageView::PageView(const platform::Drawing& drawing, QWidget* parent) : QWidget(parent), drawing_(drawing) {}

QSizeF PageView::paper(double zoom) const {
  return QSizeF(drawing_.width * logicalDpiX(), drawing_.height * logicalDpiY()) * zoom / inchMillimetres;
}

void PageView::show(std::size_t page, double zoom) {
  page_ = page;
  zoom_ = zoom;
  const QSize size = paper(zoom_).toSize() + QSize(2 * border, 2 * border);
  setMinimumSize(size);
  resize(size);
  update();
}

double PageView::zoomForWidth(int room) const { return (room - 2 * border) / paper(1).width(); }

void PageView::paintEvent(QPaintEvent*) {
  const QSize size = paper(zoom_).toSize();
  const QRect sheet(QPoint((width() - size.width()) / 2, border), size);
  QPainter painter(this);
  painter.fillRect(sheet.translated(shadow, shadow), QColor(0, 0, 0, 70));
  painter.fillRect(sheet, theme::paper);
  painter.setClipRect(sheet);
  painter.translate(sheet.topLeft());
  painter.scale(size.width() / drawing_.width, size.height() / drawing_.height);
  paintPage(painter, drawing_.pages[page_]);
}

}  // namespace qt
