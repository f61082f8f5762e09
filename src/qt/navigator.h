// Shows screens as windows: modal ones return when they are closed, standing ones are kept until then. The program ends
// with the last standing one.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "kit/screen.h"
#include "qt/screen_window.h"

namespace qt {

class QtNavigator : public QObject, public kit::Navigator {
 public:
  explicit QtNavigator(Views views) : views_(std::move(views)) {}
  ~QtNavigator() override;

  std::vector<kit::Screen*> standing() override;
  // Told of each window when it is shown, before a modal one starts to wait.
  std::function<void(ScreenWindow&)> onShown;

 protected:
  void run(kit::Screen& screen) override;
  void keep(std::unique_ptr<kit::Screen> screen) override;

 private:
  struct Standing {
    std::unique_ptr<kit::Screen> screen;
    std::unique_ptr<ScreenWindow> window;  // goes before its screen
  };
  void sweepSoon();
  void sweep();

  const Views views_;
  std::vector<Standing> kept_;
};

}  // namespace qt
