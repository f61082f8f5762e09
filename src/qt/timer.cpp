#include <QTimer>

#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {

void runTimer(kit::Timer& timer, kit::Screen& screen, Renderer& renderer) {
  auto* clock = new QTimer(&renderer);
  clock->setObjectName(toQt(timer.name));
  clock->setInterval(timer.interval);
  renderer.follow(timer, [clock, &timer] {
    if (timer.running() && !clock->isActive()) clock->start();
    if (!timer.running()) clock->stop();
  });
  // A tick comes between two events of its screen, never inside one that shows a message or its progress; a timer that
  // only looks at the others may tick behind a message, too.
  QObject::connect(clock, &QTimer::timeout, &renderer, [&timer, &screen] {
    if ((timer.ticksBehindScreens || !screen.busy()) && !screen.closed()) timer.tick();
  });
}

}  // namespace qt
