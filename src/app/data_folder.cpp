#include "app/data_folder.h"

#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "qt/text.h"
#include "store/error.h"
#include "store/files.h"

namespace app {
namespace {

namespace fs = std::filesystem;

constexpr const char *file = "/fee-office/fee-office.conf", *key = "dataFolder";

// The person's own setting; where there is none, the one that the administrator wrote for the whole computer.
QString remembered() {
  const QString found = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file + 1);
  return found.isEmpty() ? QString() : QSettings(found, QSettings::IniFormat).value(key).toString();
}

void remember(const QString& folder) {
  QSettings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + file, QSettings::IniFormat)
      .setValue(key, folder);
}

QString sharedFiles(const QString& programFolder) { return programFolder + "/../share/fee-office"; }

fs::path pathOf(const QString& folder) { return qt::fromQt(QDir(folder).absolutePath()); }

// A new office gets the pictures that came with the program; it works without them, too.
void copyPictures(const QString& programFolder, const fs::path& folder) {
  std::error_code ignored;
  fs::copy(pathOf(sharedFiles(programFolder)), folder, fs::copy_options::recursive | fs::copy_options::skip_existing,
           ignored);
}

bool makeOffice(kit::Person& person, const fs::path& folder) {
  followRightsOf(folder);
  try {
    store::createWhenNew(folder);
    return true;
  } catch (const store::StoreError& error) {
    person.tell(kit::Box::Stop, error.what(), kit::wrongInput);
    return false;
  }
}

}  // namespace

std::optional<DataFolder> knownDataFolder(const QString& named, const QString& programFolder) {
  if (!named.isEmpty()) return DataFolder{pathOf(named)};
  const fs::path own = pathOf(programFolder);
  const bool installed = QFileInfo::exists(sharedFiles(programFolder));
  if (store::holdsDatabases(own) || (!installed && QFileInfo(programFolder).isWritable())) return DataFolder{own};
  const QString chosen = remembered();
  if (chosen.isEmpty()) return std::nullopt;
  return DataFolder{pathOf(chosen), true};
}

std::optional<DataFolder> chooseDataFolder(kit::Person& person, const QString& programFolder,
                                           const std::function<QString()>& pick) {
  const char* title = "数据文件夹";
  while (person.ask(kit::Box::AskInfo,
                    "请选择存放学校数据的文件夹。\n多台计算机共用数据时，请选择共享文件夹中已有的数据文件夹。\n"
                    "点“是”选择文件夹；点“否”退出本程序。",
                    title)) {
    const QString picked = pick();
    if (picked.isEmpty()) continue;
    const DataFolder folder{pathOf(picked), true};
    if (!store::holdsDatabases(folder.path)) {
      const bool wanted =
          person.ask(kit::Box::AskInfo,
                     "文件夹“" + folder.path.string() + "”中没有本系统的数据。\n要在这里建立新的数据库吗？", title);
      if (!wanted || !makeOffice(person, folder.path)) continue;
      copyPictures(programFolder, folder.path);
    }
    remember(qt::toQt(folder.path.string()));
    return folder;
  }
  return std::nullopt;
}

void followRightsOf(const fs::path& folder) {
  struct stat found {};
  if (stat(folder.c_str(), &found) == 0) umask(~found.st_mode & (S_IRWXG | S_IRWXO));
}

}  // namespace app
