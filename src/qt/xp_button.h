// XPButton: the push button of every screen. Drawn from four faces (disabled, normal, mouse over, pressed), with an
// optional picture and a balloon tip.
#pragma once

#include <QAbstractButton>
#include <memory>

namespace qt {

class BalloonTip;

class XPButton : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(QPixmap Picture READ picture WRITE setPicture)
  Q_PROPERTY(int Style READ pictureStyle WRITE setPictureStyle)
  Q_PROPERTY(QFont Font READ font WRITE setFont)
  Q_PROPERTY(QColor ForeColor READ foreColor WRITE setForeColor)
  Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
  Q_PROPERTY(QString Caption READ text WRITE setText)
  Q_PROPERTY(QString MyToolTip READ myToolTip WRITE setMyToolTip)

 public:
  enum State { Disabled, Normal, Over, Pressed };
  enum PictureStyle { PictureLeft, PictureAbove };

  explicit XPButton(QWidget* parent = nullptr);
  ~XPButton() override;

  QPixmap picture() const { return picture_; }
  void setPicture(const QPixmap& picture);
  void setIconName(
      const QString& name);  // the picture from the icon set, in step with screen density and caption colour
  int pictureStyle() const { return style_; }
  void setPictureStyle(int style);
  QColor foreColor() const;
  void setForeColor(const QColor& colour);
  QString myToolTip() const { return tip_; }
  void setMyToolTip(const QString& tip);
  void setDefaultLook(bool on);  // the window's default button
  bool defaultLook() const { return default_; }

  State state() const { return !isEnabled() ? Disabled : isDown() ? Pressed : state_; }
  BalloonTip* balloon() const { return balloon_.get(); }

  // Where caption and picture lie within the button; an empty one is not drawn.
  struct Places {
    QRect caption, picture;
  };
  Places places() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void Click();
  void MouseDown(int button, int shift, int x, int y);
  void MouseUp(int button, int shift, int x, int y);
  void MouseMove(int button, int shift, int x, int y);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void PrintB(State state = Normal);
  void SetText(QPainter& painter);
  void AssignToolTip();
  QPixmap shownPicture() const;

  QPixmap picture_;
  QString icon_, tip_;
  QColor foreColour_;
  int style_ = PictureLeft;
  State state_ = Normal;
  bool down_ = false, over_ = false, default_ = false;
  std::unique_ptr<BalloonTip> balloon_;
};

}  // namespace qt
