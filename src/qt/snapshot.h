// Pictures of windows.
#pragma once

#include <QString>

class QWidget;

namespace qt {

// Lays the window out and saves what it shows as a picture file. False: the file could not be written.
bool snapshot(QWidget& window, const QString& path);

}  // namespace qt
