#include "qt/snapshot.h"

#include <QApplication>
#include <QPixmap>
#include <QWidget>

namespace qt {

bool snapshot(QWidget& window, const QString& path) {
  QApplication::processEvents();  // lists show their rows and layouts settle when the event is over
  return window.grab().save(path);
}

}  // namespace qt
