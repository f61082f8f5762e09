#include "qt/computer.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>
#include <fstream>
#include <set>

#include "qt/text.h"

namespace qt {
namespace {
constexpr int longestName = 255;
}

base::DateTime QtClock::now() {
  const QDateTime moment = QDateTime::currentDateTime();
  const QDate date = moment.date();
  const QTime time = moment.time();
  return {{date.year(), date.month(), date.day()}, time.hour(), time.minute(), time.second()};
}

platform::WorkArea QtDesktop::workArea() {
  const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  return {area.x(), area.y(), area.x() + area.width(), area.y() + area.height()};
}

std::string QtDesktop::computerName() { return fromQt(QSysInfo::machineHostName().left(longestName)); }

// A folder that was chosen is shared by computers of different screens.
std::filesystem::path QtDesktop::deskFolder() {
  if (!chosen_) return folder_;
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
  QDir().mkpath(own);
  return fromQt(own);
}

// Copies of one installation share what the system has written down about itself; the address of the network card stays
// the computer's own.
std::string QtDesktop::computerMark() {
  namespace fs = std::filesystem;
  std::set<std::string> cards;
  std::error_code unread;
  for (const fs::directory_entry& one : fs::directory_iterator("/sys/class/net", unread)) {
    const auto firstLine = [&](const char* file) {
      std::string line;
      std::getline(std::ifstream(one.path() / file), line);
      return line;
    };
    const bool builtIn = fs::exists(one.path() / "device", unread) && firstLine("addr_assign_type") == "0";
    if (builtIn) cards.insert(firstLine("address"));
  }
  const std::string system = QSysInfo::machineUniqueId().toStdString();
  return cards.empty() ? system : system + " " + *cards.begin();
}

void QtDesktop::SetDisplayMode(int width, int height, int depth, int rate) {
  wishedMode = {width, height, depth, rate};
}

bool QtDesktop::startProgram(const std::filesystem::path& program) {
  return QProcess::startDetached(toQt(program.string()), {}, toQt(program.parent_path().string()));
}

std::filesystem::path QtDesktop::exportFolder() {
  return std::filesystem::path(fromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))) / "导出";
}

bool QtDesktop::openDocument(const std::filesystem::path& file) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(file.string())));
}

}  // namespace qt
