#include "qt/xp_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <array>

#include "qt/balloon_tip.h"
#include "qt/icon.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr int corner = 3;     // 45 twips
constexpr int faceSide = 24;  // the faces are small: their edges and centre stretch
constexpr int gap = 6;        // between picture and caption
constexpr int padding = 14, lowest = 30;
constexpr int iconSide = 16, iconSideAbove = 28;

struct FaceColours {
  QColor top, bottom, border;
};

const FaceColours& coloursOf(XPButton::State state, bool defaultLook) {
  static const std::array<FaceColours, 4> plain = {{{{226, 236, 236}, {226, 236, 236}, {190, 208, 208}},
                                                    {{255, 255, 255}, {238, 246, 246}, {140, 178, 179}},
                                                    {{255, 255, 255}, {221, 240, 239}, {15, 98, 104}},
                                                    {{196, 222, 221}, {212, 232, 231}, {10, 74, 80}}}};
  static const std::array<FaceColours, 4> filled = {{{{226, 236, 236}, {226, 236, 236}, {190, 208, 208}},
                                                     {{30, 118, 124}, {15, 98, 104}, {10, 80, 86}},
                                                     {{44, 138, 143}, {22, 112, 118}, {10, 80, 86}},
                                                     {{8, 66, 71}, {12, 84, 90}, {6, 54, 58}}}};
  return (defaultLook ? filled : plain)[state];
}

// The face of a state, drawn once for each density.
QPixmap face(XPButton::State state, bool defaultLook, qreal ratio) {
  const QString key = QString("xp-face-%1-%2-%3").arg(state).arg(defaultLook).arg(ratio);
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  pixmap = QPixmap(QSize(faceSide, faceSide) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const FaceColours& colours = coloursOf(state, defaultLook);
  QLinearGradient shade(0, 0, 0, faceSide);
  shade.setColorAt(0, colours.top);
  shade.setColorAt(1, colours.bottom);
  painter.setPen(QPen(colours.border, 1));
  painter.setBrush(shade);
  painter.drawRoundedRect(QRectF(0.5, 0.5, faceSide - 1, faceSide - 1), corner, corner);
  painter.end();
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

// Nine pieces: the corners stay as they are, the edges and the centre stretch.
void drawFace(QPainter& painter, const QRect& surface, const QPixmap& pixmap) {
  const qreal ratio = pixmap.devicePixelRatio();
  const auto cuts = [](int from, int length) {
    return std::array<int, 4>{from, from + corner, from + length - corner, from + length};
  };
  const auto x = cuts(surface.x(), surface.width()), y = cuts(surface.y(), surface.height()),
             source = cuts(0, faceSide);
  const auto piece = [](const std::array<int, 4>& across, const std::array<int, 4>& down, std::size_t i,
                        std::size_t j) {
    return QRectF(QPointF(across[i], down[j]), QPointF(across[i + 1], down[j + 1]));
  };
  for (std::size_t i = 0; i < 3; ++i)
    for (std::size_t j = 0; j < 3; ++j) {
      const QRectF from = piece(source, source, i, j);
      painter.drawPixmap(piece(x, y, i, j), pixmap, QRectF(from.topLeft() * ratio, from.size() * ratio));
    }
}

int shiftOf(Qt::KeyboardModifiers keys) {
  return (keys & Qt::ShiftModifier ? 1 : 0) | (keys & Qt::ControlModifier ? 2 : 0) | (keys & Qt::AltModifier ? 4 : 0);
}

int buttonOf(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
         (buttons & Qt::MiddleButton ? 4 : 0);
}

}  // namespace

XPButton::XPButton(QWidget* parent) : QAbstractButton(parent) {
  setText("0");
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::clicked, this, &XPButton::Click);
}

XPButton::~XPButton() = default;

void XPButton::setPicture(const QPixmap& picture) {
  picture_ = picture;
  icon_.clear();
  updateGeometry();
  update();
}

void XPButton::setIconName(const QString& name) {
  icon_ = name;
  updateGeometry();
  update();
}

void XPButton::setPictureStyle(int style) {
  style_ = style;
  updateGeometry();
  update();
}

QColor XPButton::foreColor() const {
  if (!isEnabled()) return theme::faint;
  if (foreColour_.isValid()) return foreColour_;
  return default_ ? QColor(Qt::white) : palette().color(QPalette::ButtonText);
}

void XPButton::setForeColor(const QColor& colour) {
  foreColour_ = colour;
  update();
}

void XPButton::setMyToolTip(const QString& tip) {
  if (tip_ == tip) return;
  tip_ = tip;
  AssignToolTip();
  update();
}

void XPButton::setDefaultLook(bool on) {
  default_ = on;
  update();
}

void XPButton::AssignToolTip() { balloon_ = tip_.isEmpty() ? nullptr : std::make_unique<BalloonTip>(tip_); }

void XPButton::PrintB(State state) {
  state_ = state;
  update();
}

QPixmap XPButton::shownPicture() const {
  if (icon_.isEmpty()) return picture_;
  const QColor colour = !isEnabled() ? theme::faint : default_ ? QColor(Qt::white) : usualColour(icon_);
  return iconPixmap(icon_, style_ == PictureAbove ? iconSideAbove : iconSide, devicePixelRatioF(), colour);
}

XPButton::Places XPButton::places() const {
  const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
  const QPixmap pixmap = shownPicture();
  const QSize image = pixmap.isNull() ? QSize() : pixmap.deviceIndependentSize().toSize();
  const auto centred = [](int whole, int part) { return (whole - part) / 2; };
  const auto middle = [&](const QSize& part) {
    return QRect(QPoint(centred(width(), part.width()), centred(height(), part.height())), part);
  };
  if (pixmap.isNull()) return {middle(words), {}};
  if (text().isEmpty()) return {{}, middle(image)};
  if (style_ == PictureLeft) {
    const int left = centred(width(), image.width() + gap + words.width());
    return {QRect(QPoint(left + image.width() + gap, centred(height(), words.height())), words),
            QRect(QPoint(left, centred(height(), image.height())), image)};
  }
  if (style_ == PictureAbove) {
    const int top = centred(height(), image.height() + words.height());
    return {QRect(QPoint(centred(width(), words.width()), top + image.height()), words),
            QRect(QPoint(centred(width(), image.width()), top), image)};
  }
  return {{}, middle(image)};
}

void XPButton::SetText(QPainter& painter) {
  const Places at = places();
  if (!at.picture.isEmpty()) painter.drawPixmap(at.picture.topLeft(), shownPicture());
  if (at.caption.isEmpty()) return;
  painter.setPen(foreColor());
  painter.drawText(at.caption, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip, text());
}

QSize XPButton::sizeHint() const {
  const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
  const QPixmap pixmap = shownPicture();
  QSize inner = words;
  if (!pixmap.isNull()) {
    const QSize image = pixmap.deviceIndependentSize().toSize();
    inner = style_ == PictureAbove ? QSize(qMax(words.width(), image.width()), words.height() + image.height())
                                   : QSize(words.width() + gap + image.width(), qMax(words.height(), image.height()));
  }
  return {inner.width() + 2 * padding, qMax(lowest, inner.height() + 10)};
}

void XPButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFace(painter, rect(), face(state(), default_, devicePixelRatioF()));
  SetText(painter);
  if (!hasFocus()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(default_ ? QColor(255, 255, 255, 220) : theme::accent, 1.4));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(2.7, 2.7, -2.7, -2.7), 2, 2);
}

void XPButton::showEvent(QShowEvent* event) {
  QAbstractButton::showEvent(event);
  PrintB();
}

bool XPButton::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    if (balloon_) balloon_->popUp(QRect(mapToGlobal(QPoint(0, 0)), size()));
    return true;
  }
  if (event->type() == QEvent::Hide && balloon_) balloon_->hide();
  return QAbstractButton::event(event);
}

void XPButton::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) {
    down_ = over_ = false;
    PrintB();
  }
  QAbstractButton::changeEvent(event);
}

void XPButton::leaveEvent(QEvent*) {
  over_ = false;
  if (balloon_) balloon_->hide();
  PrintB();
}

void XPButton::mouseMoveEvent(QMouseEvent* event) {
  // A message that was shown while the button went down took the letting go: that press is over.
  if (event->buttons() == Qt::NoButton) down_ = false;
  const QPoint at = event->position().toPoint();
  emit MouseMove(buttonOf(event->buttons()), shiftOf(event->modifiers()), at.x(), at.y());
  const bool inside = rect().contains(at);
  if (inside == over_) return;
  over_ = inside;
  PrintB(inside ? Over : Normal);
}

void XPButton::mousePressEvent(QMouseEvent* event) {
  if (balloon_) balloon_->hide();
  const QPoint at = event->position().toPoint();
  down_ = event->button() == Qt::LeftButton;
  if (down_) PrintB(Pressed);
  emit MouseDown(buttonOf(event->button()), shiftOf(event->modifiers()), at.x(), at.y());
}

void XPButton::mouseReleaseEvent(QMouseEvent* event) {
  const QPointer<XPButton> alive(this);
  const QPoint at = event->position().toPoint();
  const bool click = down_ && event->button() == Qt::LeftButton && rect().contains(at);
  down_ = over_ = false;
  PrintB();
  emit MouseUp(buttonOf(event->button()), shiftOf(event->modifiers()), at.x(), at.y());
  if (alive && click) emit clicked();
}

void XPButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) emit clicked();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace qt
