// fee-office [program folder]: the program. The folder holds the databases; without one it is the executable's own.
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "app/office.h"
#include "qt/text.h"
#include "qt/theme.h"

int main(int argc, char** argv) {
  // Printing and the clipboard need a folder of the session; a bare desktop may have none.
  const QTemporaryDir runtime;
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // the navigator ends the program
  qt::applyTheme(application);
  const QStringList words = QApplication::arguments();
  const QString folder = words.size() > 1 ? words[1] : QApplication::applicationDirPath();
  app::Office office(qt::fromQt(QDir(folder).absolutePath()));
  return office.run();
}
