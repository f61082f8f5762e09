// Words that nobody has to answer: in the status bar of a window, or over its lower edge where it has none.
#pragma once

#include <QString>

class QWidget;

namespace qt {

// With a passing word, the words go after five seconds; without, when others or none take their place.
void sayQuietly(QWidget& window, const QString& words, bool passing);

}  // namespace qt
