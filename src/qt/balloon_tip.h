// A yellow balloon with black text that points at a button.
#pragma once

#include <QPainterPath>
#include <QWidget>

namespace qt {

class BalloonTip : public QWidget {
 public:
  explicit BalloonTip(const QString& text);
  void popUp(const QRect& target);  // beside a rectangle of the screen
  const QString& text() const { return text_; }

 protected:
  QPainterPath shape() const;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  int tail_ = 0;           // where the tail points at
  bool tailAbove_ = true;  // the balloon hangs below its target
};

}  // namespace qt
