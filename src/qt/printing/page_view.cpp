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

void PageView::highlight(const QRectF& place) {
  highlight_ = place;
  update();
}

QRect PageView::sheet() const {
  const QSize size = paper(zoom_).toSize();
  return {QPoint((width() - size.width()) / 2, border), size};
}

QRect PageView::placeInView(const QRectF& place) const {
  const QRect paperThere = sheet();
  const double across = paperThere.width() / drawing_.width, down = paperThere.height() / drawing_.height;
  const QRectF scaled(place.x() * across, place.y() * down, place.width() * across, place.height() * down);
  return scaled.toAlignedRect().translated(paperThere.topLeft());
}

void PageView::paintEvent(QPaintEvent*) {
  const QRect paperHere = sheet();
  QPainter painter(this);
  painter.fillRect(paperHere.translated(shadow, shadow), QColor(0, 0, 0, 70));
  painter.fillRect(paperHere, theme::paper);
  painter.setClipRect(paperHere);
  if (!highlight_.isNull()) painter.fillRect(placeInView(highlight_.adjusted(-0.5, -0.5, 0.5, 0.5)), theme::found);
  painter.translate(paperHere.topLeft());
  painter.scale(paperHere.width() / drawing_.width, paperHere.height() / drawing_.height);
  paintPage(painter, drawing_.pages[page_]);
}

}  // namespace qt
