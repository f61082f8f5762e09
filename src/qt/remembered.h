// What windows were left like on this computer: places and sizes, panes, columns, the size of text.
#pragma once

#include <QSettings>

class QSplitter;

namespace qt {

QSettings& remembered();
void rememberPanes(QSplitter& panes,
                   const QString& key);  // puts them where they were left, and notes where they are left

}  // namespace qt
