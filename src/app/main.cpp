// fee-office [program folder]: the program. The folder holds the databases; without one it is the executable's own.
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "app/screens.h"
#include "qt/computer.h"
#include "qt/navigator.h"
#include "qt/person.h"
#include "qt/progress.h"
#include "qt/text.h"
#include "qt/theme.h"
#include "shell/splash.h"
#include "shell/start.h"

int main(int argc, char** argv) {
  // Printing and the clipboard need a folder of the session; a bare desktop may have none.
  const QTemporaryDir runtime;
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // the navigator ends the program
  qt::applyTheme(application);
  const QStringList words = QApplication::arguments();
  const QString folder = words.size() > 1 ? words[1] : QApplication::applicationDirPath();

  store::Store store(qt::fromQt(QDir(folder).absolutePath()));
  kit::Session session;
  qt::QtPerson person(shell::productTitle);
  qt::QtNavigator navigator(app::views());
  qt::QtClock clock;
  qt::QtDesktop desktop(qt::fromQt(QDir(folder).absolutePath()));
  qt::QtProgress progress;
  store.onWait = [&](bool waiting) { progress.waiting(waiting); };
  return 0;
}
