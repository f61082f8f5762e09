#include "qt/navigator.h"

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <algorithm>

namespace qt {

QtNavigator::~QtNavigator() = default;

std::vector<kit::Screen*> QtNavigator::standing() {
  std::vector<kit::Screen*> open;
  for (const Standing& one : kept_)
    if (!one.screen->closed()) open.push_back(one.screen.get());
  return open;
}

void QtNavigator::run(kit::Screen& screen) {
  if (!screen.start() || screen.closed()) return;
  const QPointer<QWidget> below = QApplication::activeWindow();
  ScreenWindow window(screen, views_);
  window.setWindowModality(Qt::ApplicationModal);
  // No button that makes it small: the windows below would look dead.
  window.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint |
                        (window.windowFlags() & Qt::FramelessWindowHint));
  window.winId();  // makes the native window, so that it can be told which one it belongs to
  if (below && below->windowHandle()) window.windowHandle()->setTransientParent(below->windowHandle());
  QEventLoop loop;
  QObject::connect(&window, &ScreenWindow::left, &loop, &QEventLoop::quit);
  window.present();
  if (onShown) onShown(window);
  if (!screen.closed()) loop.exec();
  if (below) below->activateWindow();  // a bare display does not do it by itself
  sweepSoon();
}

void QtNavigator::keep(std::unique_ptr<kit::Screen> screen) {
  kit::Screen& one = *screen;
  kept_.push_back({std::move(screen), nullptr});
  one.start();
  if (one.closed()) return sweepSoon();
  auto made = std::make_unique<ScreenWindow>(one, views_);
  ScreenWindow& window = *made;
  connect(&window, &ScreenWindow::left, this, [this] { sweepSoon(); });
  std::find_if(kept_.begin(), kept_.end(), [&](const Standing& held) { return held.screen.get() == &one; })->window =
      std::move(made);
  window.present();
  if (onShown) onShown(window);
}

void QtNavigator::sweepSoon() {
  QTimer::singleShot(1, this, [this] { sweep(); });  // a timer: a notice that repaints lets it wait
}

// A closed screen stays until no event of it is under way any more: its handlers may still be on the stack below a
// modal window.
void QtNavigator::sweep() {
  std::vector<Standing> gone;
  for (auto one = kept_.begin(); one != kept_.end();) {
    const bool over = one->screen->closed() && !one->screen->busy();
    if (over) gone.push_back(std::move(*one));
    one = over ? kept_.erase(one) : one + 1;
  }
  if (standing().empty()) QApplication::quit();
}

}  // namespace qt
