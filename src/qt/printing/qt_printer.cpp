#include "qt/printing/qt_printer.h"

#include <QApplication>

#include "qt/printing/preview_window.h"

namespace qt {

void QtPrinter::show(const platform::Drawing& drawing) {
  if (drawing.pages.empty()) return;
  PreviewWindow(drawing, QApplication::activeWindow()).exec();
}

}  // namespace qt
