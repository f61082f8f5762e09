#include "qt_test.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>

#include "qt/application.h"
#include "qt/snapshot.h"
#include "qt/theme.h"

namespace support {

void settle() {
  QApplication::processEvents();
  QApplication::sendPostedEvents();
}

void keepPicture(QWidget& window, const std::string& name) {
  const QString folder = qEnvironmentVariable("PICTURES");
  if (folder.isEmpty()) return;
  EXPECT_TRUE(qt::snapshot(window, folder + "/" + QString::fromStdString(name) + ".png"));
}

}  // namespace support

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  QFile screen(folder.filePath("screen.json"));
  if (screen.open(QIODevice::WriteOnly))
    screen.write(
        R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": 1366, "height": 768, "logicalDpi": 96, "dpr": 1}]})");
  screen.close();
  if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());  // what windows remember goes with it
  // No printer of the machine's: none, or those of tools/cups-for-tests.
  if (qEnvironmentVariableIsEmpty("PRINT_TEST_FOLDER")) qputenv("CUPS_SERVER", folder.filePath("none").toUtf8());
  testing::InitGoogleMock(&argc, argv);
  qt::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  qt::applyTheme(application);
  return RUN_ALL_TESTS();
}
