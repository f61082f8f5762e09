#include "qt_test.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QWidget>

#include <memory>

#include "qt/snapshot.h"
#include "qt/theme.h"

namespace support {

namespace {

// Stands before the first test and goes before main returns: the toolkit's own statics outlive no application.
class ApplicationFirst : public testing::Environment {
  void SetUp() override {
    QFile screen(folder_.filePath("screen.json"));
    const QByteArray size = qEnvironmentVariableIsSet("SCREEN") ? qgetenv("SCREEN") : QByteArray(R"("width": 1366, "height": 768)");
    if (screen.open(QIODevice::WriteOnly))
      screen.write(R"({"screens": [{"name": "desk", "x": 0, "y": 0, )" + size + R"(, "logicalDpi": 96, "dpr": 1}]})");
    screen.close();
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
      qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", folder_.path().toUtf8());
    app_ = std::make_unique<QApplication>(argc_, argv_);
    qt::applyTheme(*app_);
    QApplication::setQuitOnLastWindowClosed(false);
  }
  void TearDown() override { app_.reset(); }

  QTemporaryDir folder_;
  int argc_ = 1;
  char name_[8] = "test_qt";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> app_;
};
const auto* const applicationFirst = testing::AddGlobalTestEnvironment(std::make_unique<ApplicationFirst>().release());

}  // namespace

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
