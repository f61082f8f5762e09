#include "qt_test.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QWidget>

#include "qt/snapshot.h"
#include "qt/theme.h"

namespace support {

QApplication& application() {
  static int argc = 1;
  static char name[] = "test_qt";
  static char* argv[] = {name, nullptr};
  static QTemporaryDir folder;
  static const bool prepared = [] {
    QFile screen(folder.filePath("screen.json"));
    const QByteArray size = qEnvironmentVariableIsSet("SCREEN") ? qgetenv("SCREEN") : QByteArray(R"("width": 1366, "height": 768)");
    if (screen.open(QIODevice::WriteOnly))
      screen.write(R"({"screens": [{"name": "desk", "x": 0, "y": 0, )" + size + R"(, "logicalDpi": 96, "dpr": 1}]})");
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
      qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    return true;
  }();
  static QApplication app(argc, argv);
  static const bool themed = prepared && (qt::applyTheme(app), QApplication::setQuitOnLastWindowClosed(false), true);
  static_cast<void>(themed);
  return app;
}

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
