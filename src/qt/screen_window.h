// The window of a screen: menus, toolbar and status bar where the layout has them, and the layout's widgets.
#pragma once

#include <QMainWindow>
#include <memory>

#include "qt/renderer.h"

namespace qt {

class ScreenWindow : public QMainWindow {
  Q_OBJECT
 public:
  ScreenWindow(kit::Screen& screen, const Views& views);
  ~ScreenWindow() override;

  void present();  // sizes, places and shows it, with the focus where the screen wants it
  kit::Screen& screen() { return screen_; }

 signals:
  void left();  // the screen was closed

 protected:
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void build();
  void rebuild();
  static void setTextSize(int points);
  void addBars(const kit::Layout& layout);
  void escape();
  void leave();  // as by the frame: the screen is asked
  QRect placeOn(const QRect& area) const;
  QString placeKey() const;  // of where the person left it

  kit::Screen& screen_;
  const Views& views_;
  const kit::Layout layout_;
  std::unique_ptr<Renderer> renderer_;
  QRect usual_;
  bool stale_ = false;  // built for text of another size
};

}  // namespace qt
