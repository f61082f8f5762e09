#include "qt/remembered.h"

#include <QSplitter>

namespace qt {

QSettings& remembered() {
  static QSettings settings(QSettings::IniFormat, QSettings::UserScope, "fee-office", "windows");
  return settings;
}

void rememberPanes(QSplitter& panes, const QString& key) {
  panes.restoreState(remembered().value(key).toByteArray());
  QObject::connect(&panes, &QSplitter::splitterMoved, &panes,
                   [&panes, key] { remembered().setValue(key, panes.saveState()); });
}

}  // namespace qt
