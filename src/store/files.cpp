#include "store/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "store/error.h"
#include "store/schema.h"
#include "store/server.h"
#include "store/sqlite_engine.h"
#include "store/store.h"

namespace store {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view sourceMark = "Data Source=";
constexpr std::string_view passwordMark = ";Jet OLEDB:Database Password='";
constexpr std::string_view unfinished = ".new";

// The start screen names its own pair of paths; they are the same two files.
struct Alias {
  std::string_view path;
  Connection same;
};
constexpr std::array<Alias, 2> aliases{
    {{"/mvdata/morvanegxgl.mdb", Connection::Main}, {"/mvdata/morvanedjpz.mdb", Connection::Config}}};

std::string withSlashes(std::string_view path) {
  std::string result(path);
  std::ranges::replace(result, '\\', '/');
  return result;
}

fs::path newFolder(const fs::path& folder) {
  fs::path result = folder;
  result += unfinished;
  return result;
}

void createIn(const fs::path& programFolder, Connection which) {
  const fs::path file = fileIn(programFolder, which);
  const fs::path folder = newFolder(file.parent_path());
  fs::remove_all(folder);
  fs::create_directories(folder);
  const auto engine = openSqlite({folder / file.filename(), std::string(password(which)), true});
  bringUp(*engine, which);
}

// Two computers may start at the same moment on an empty folder: one creates, the other waits and finds it done.
class CreationLock {
 public:
  explicit CreationLock(const fs::path& programFolder)
      : file_(::open((programFolder / ".creating").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
    if (file_ >= 0) ::flock(file_, LOCK_EX);
  }
  ~CreationLock() {
    if (file_ >= 0) ::close(file_);
  }
  CreationLock(const CreationLock&) = delete;
  CreationLock& operator=(const CreationLock&) = delete;

 private:
  const int file_;  // stays behind, empty: taking it away would let a third computer lock another file of the name
};

void create(const fs::path& programFolder) {
  const fs::path main = fileIn(programFolder, Connection::Main).parent_path();
  const fs::path config = fileIn(programFolder, Connection::Config).parent_path();
  if (fs::exists(main) && fs::exists(config)) return;
  const CreationLock lock(programFolder);
  if (!fs::exists(main) && !fs::exists(config)) {
    createIn(programFolder, Connection::Main);
    createIn(programFolder, Connection::Config);
    fs::rename(newFolder(config), config);
  }
  // Both were complete before the first one got its name, so the second one can follow at any later start.
  if (fs::exists(config) && !fs::exists(main) && fs::exists(newFolder(main))) fs::rename(newFolder(main), main);
}

}  // namespace

std::string_view livePath(Connection which) {
  return which == Connection::Main ? "\\mv_Database\\morvanegxgl.mdb" : "\\配置文件\\morvanedjpz.mdb";
}

fs::path fileIn(const fs::path& programFolder, Connection which) {
  return programFolder / withSlashes(livePath(which)).substr(1);
}

std::string_view password(Connection which) { return which == Connection::Main ? mainPassword : configPassword; }

std::string connectionText(const fs::path& programFolder, std::string_view path, std::string_view password) {
  return "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;" + std::string(sourceMark) +
         programFolder.string() + std::string(path) + std::string(passwordMark) + std::string(password) + "'";
}

Location locate(const std::string& text) {
  const std::size_t source = text.find(sourceMark);
  const std::size_t key = text.rfind(passwordMark);
  if (source == std::string::npos || key == std::string::npos || key < source) {
    throw StoreError(Fault::Missing, "没有指定数据库文件，请重新启动本程序！");
  }
  const std::size_t path = source + sourceMark.size();
  const std::size_t from = key + passwordMark.size();
  std::string file = withSlashes(std::string_view(text).substr(path, key - path));
  for (const Alias& alias : aliases) {
    if (!file.ends_with(alias.path)) continue;
    file.replace(file.size() - alias.path.size(), alias.path.size(), withSlashes(livePath(alias.same)));
    break;
  }
  return {file, text.substr(from, text.size() - from - (text.ends_with('\'') ? 1 : 0))};
}

bool holdsDatabases(const fs::path& programFolder) {
  std::error_code ignored;  // a folder that does not answer holds nothing
  return fs::exists(fileIn(programFolder, Connection::Main).parent_path(), ignored) ||
         fs::exists(fileIn(programFolder, Connection::Config).parent_path(), ignored);
}

bool mayWrite(const fs::path& programFolder) {
  if (serverOf(programFolder)) return true;
  std::error_code ignored;  // what does not answer is told when it is opened
  for (const Connection which : {Connection::Main, Connection::Config}) {
    const fs::path file = fileIn(programFolder, which);
    for (const fs::path& one : {file, file.parent_path()})
      if (fs::exists(one, ignored) && ::access(one.c_str(), W_OK) != 0) return false;
  }
  return true;
}

void createWhenNew(const fs::path& programFolder) {
  try {
    create(programFolder);
  } catch (const fs::filesystem_error&) {
    throw StoreError(Fault::ReadOnly,
                     "不能在“" + programFolder.string() + "”下建立数据库，请检查写入权限和磁盘空间后再试！");
  }
}

}  // namespace store
