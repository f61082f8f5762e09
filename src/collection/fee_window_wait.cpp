#include "collection/fee_window_wait.h"

#include "collection/fee_window.h"

namespace collection {

Formzctsf6::Formzctsf6(kit::Desk& desk) : Screen(desk, "Formzctsf6", "收费窗口") {
  timer.onTick([this] {
    timer.stop();
    close();
    open<Formzctsf4>();
  });
  timer.start();
}

}  // namespace collection
