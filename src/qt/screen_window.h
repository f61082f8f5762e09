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
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void addBars(const kit::Layout& layout);
  void escape();
  void leave();  // as by the frame: the screen is asked
  QRect placeOn(const QRect& area) const;

  kit::Screen& screen_;
  const kit::Layout layout_;
  std::unique_ptr<Renderer> renderer_;
};

}  // namespace qt
