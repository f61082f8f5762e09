#include "qt/balloon_tip.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace qt {
namespace {
constexpr int padding = 8, tailHeight = 8, widest = 300;
constexpr Qt::TextFlag wrap = Qt::TextWordWrap;
const QColor balloonYellow(255, 255, 0);
}  // namespace

BalloonTip::BalloonTip(const QString& words) : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint), text_(words) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_ShowWithoutActivating);
  const QRect needed = fontMetrics().boundingRect(QRect(0, 0, widest, 4000), wrap, text_);
  resize(needed.width() + 2 * padding + 1, needed.height() + 2 * padding + tailHeight);
}

void BalloonTip::popUp(const QRect& target) {
  QScreen* screen = QGuiApplication::screenAt(target.center());
  if (!screen) screen = QGuiApplication::primaryScreen();
  const QRect area = screen->availableGeometry();
  tailAbove_ = target.bottom() + height() <= area.bottom();
  const int left = qBound(area.left(), target.center().x() - 24, qMax(area.left(), area.right() - width()));
  tail_ = qBound(16, target.center().x() - left, width() - 16);
  move(left, tailAbove_ ? target.bottom() : target.top() - height());
  // Without a compositor what is translucent is black: the window itself has the balloon's shape.
  setMask(QRegion(shape().toFillPolygon().toPolygon())
              .united(QRegion(shape().translated(1, 1).toFillPolygon().toPolygon())));
  show();
  raise();
}

QPainterPath BalloonTip::shape() const {
  const QRectF body =
      QRectF(rect()).adjusted(0.5, tailAbove_ ? tailHeight : 0.5, -0.5, tailAbove_ ? -0.5 : -tailHeight);
  QPainterPath balloon, tail;
  balloon.addRoundedRect(body, 6, 6);
  const qreal edge = tailAbove_ ? body.top() : body.bottom();
  tail.addPolygon(
      QPolygonF({{tail_ - 7.0, edge}, {qreal(tail_), tailAbove_ ? 0.5 : height() - 0.5}, {tail_ + 7.0, edge}}));
  return balloon.united(tail);
}

void BalloonTip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 1));
  painter.setBrush(balloonYellow);
  painter.drawPath(shape());
  painter.setPen(Qt::black);
  painter.drawText(QRectF(rect()).adjusted(padding, padding + (tailAbove_ ? tailHeight : 0), -padding,
                                           -padding - (tailAbove_ ? 0 : tailHeight)),
                   wrap, text_);
}

}  // namespace qt
