// fee-office [program folder]: the program. The folder holds the databases; without one it is the executable's own.
#include <QDir>
#include <QTemporaryDir>

#include "app/office.h"
#include "qt/application.h"
#include "qt/text.h"
#include "qt/theme.h"

int main(int argc, char** argv) {
  // Printing and the clipboard need a folder of the session; a bare desktop may have none.
  const QTemporaryDir runtime;
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  qt::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // the navigator ends the program
  qt::applyTheme(application);
  const QStringList words = QApplication::arguments();
  const QString folder = words.size() > 1 ? words[1] : QApplication::applicationDirPath();
  app::Office office(qt::fromQt(QDir(folder).absolutePath()));
  application.onFault = [&office](const std::exception_ptr& fault) { office.tell(fault); };
  try {
    return office.run();
  } catch (...) {
    office.tell(std::current_exception());
    return 1;
  }
}
