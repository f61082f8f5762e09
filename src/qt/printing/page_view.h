// One page of a drawing on grey, at any zoom; the preview scrolls it.
#pragma once

#include <QWidget>

#include "platform/drawing.h"

namespace qt {

class PageView : public QWidget {
 public:
  explicit PageView(const platform::Drawing& drawing, QWidget* parent = nullptr);
  void show(std::size_t page, double zoom);  // zoom 1 is the size of the paper
  void highlight(const QRectF& place);       // millimetres of the page shown; null for none
  QRect placeInView(const QRectF& place) const;
  // The zoom at which the paper is as wide as the room given, in pixels.
  double zoomForWidth(int room) const;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QSizeF paper(double zoom) const;  // pixels
  QRect sheet() const;              // where the paper lies
  const platform::Drawing& drawing_;
  std::size_t page_ = 0;
  double zoom_ = 1;
  QRectF highlight_;
};

}  // namespace qt
