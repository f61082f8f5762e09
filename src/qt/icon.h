// The program's icons by their names, drawn in the theme's colours at any size.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

#include "qt/theme.h"

namespace qt {

// A null icon for an empty or unknown name.
QColor usualColour(const QString& name);  // red when what it stands for destroys something
QIcon icon(const QString& name);
QIcon icon(const QString& name, const QColor& colour);
QPixmap iconPixmap(const QString& name, int size, qreal deviceRatio, const QColor& colour = theme::accent);

}  // namespace qt
