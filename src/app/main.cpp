// fee-office [data folder]: the program.
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>
#include <iostream>
#include <string_view>

#include "app/office.h"
#include "qt/application.h"
#include "qt/text.h"
#include "qt/theme.h"
#include "shell/start.h"

namespace {

constexpr const char* usage =
    "用法：fee-office [数据文件夹]\n"
    "启动学校收费管理软件。\n"
    "  数据文件夹    存放学校数据的文件夹。不写时使用程序所在的文件夹；程序装在系统中时，\n"
    "                使用第一次启动时在本机选择的文件夹。\n"
    "  --help        显示本说明。\n";

// Printing and the clipboard need a folder of the session; a bare desktop may have none.
void provideSessionFolder() {
  if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) return;
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/fee-office";
  const bool made =
      QDir().mkpath(folder) && QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  if (made) qputenv("XDG_RUNTIME_DIR", folder.toUtf8());
}

QString pickFolder() {
  return QFileDialog::getExistingDirectory(nullptr, "选择数据文件夹", QDir::homePath(),
                                           QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::string_view(argv[i]) != "--help" && std::string_view(argv[i]) != "-h") continue;
    std::cout << usage;
    return 0;
  }
  const auto named = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
  if (!named("DISPLAY") && !named("WAYLAND_DISPLAY") && !named("QT_QPA_PLATFORM")) {
    std::cerr << "没有图形桌面，不能启动。请在桌面中启动本程序。\n";
    return 1;
  }
  provideSessionFolder();
  qt::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);  // the navigator ends the program
  const QStringList words = QApplication::arguments();
  if (words.size() > 2 || words.value(1).startsWith('-')) {
    std::cerr << usage;
    return 2;
  }
  qt::applyTheme(application);
  const QString own = QApplication::applicationDirPath();
  qt::QtPerson person(shell::productTitle);
  auto folder = app::knownDataFolder(words.value(1), own);
  while (folder || (folder = app::chooseDataFolder(person, own, pickFolder))) {
    app::followRightsOf(folder->path);
    app::Office office(*folder);
    application.onFault = [&office](const std::exception_ptr& fault) { office.tell(fault); };
    try {
      const int status = office.run();
      if (!office.folderWanted()) return status;
      application.onFault = nullptr;
      folder.reset();
    } catch (...) {
      office.tell(std::current_exception());
      return 1;
    }
  }
  return 0;
}
