#include "qt/application.h"

#include <QTimer>
#include <utility>

namespace qt {

// A fault is told between two events, never here: a message must not stand in the middle of a painting, nor inside a
// call of the store.
bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    if (fault_) return false;
    fault_ = std::current_exception();
    QTimer::singleShot(1, this, [this] {
      const std::exception_ptr fault = std::exchange(fault_, nullptr);
      if (onFault) onFault(fault);
    });
    return false;
  }
}

}  // namespace qt
