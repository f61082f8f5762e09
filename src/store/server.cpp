#include "store/server.h"

#include <algorithm>
#include <fstream>

#include "base/text.h"
#include "store/error.h"
#include "store/files.h"
#include "store/ini.h"

namespace store {

std::filesystem::path serverFile(const std::filesystem::path& programFolder) {
  return fileIn(programFolder, Connection::Config).parent_path() / "server.ini";
}

std::optional<Server> serverOf(const std::filesystem::path& programFolder) {
  const std::filesystem::path file = serverFile(programFolder);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    if (!error) return std::nullopt;
    throw StoreError(Fault::Unreadable, "现在看不到文件“" + file.string() + "”。请检查共享文件夹和权限，稍候再试！");
  }
  const auto value = [&](std::string_view key) { return GetFromINI("server", key, file); };
  Server server{value("host"), value("port"), value("database"), value("user"), {}};
  if (server.host.empty() || server.database.empty()) {
    throw StoreError(Fault::Missing, "文件“" + file.string() + "”中没有写明 host 和 database，请补上后再试！");
  }
  if (const double seconds = base::leadingNumber(value("timeout")); seconds >= 1) {
    server.timeout = static_cast<int>(std::min(seconds, 3600.0));
  }
  if (const std::string name = value("passwordfile"); !name.empty()) server.passwordFile = file.parent_path() / name;
  return server;
}

std::string passwordOf(const Server& server) {
  if (server.passwordFile.empty()) return {};
  std::ifstream in(server.passwordFile);
  std::string line;
  if (in && std::getline(in, line)) return base::trim(line);
  throw StoreError(Fault::WrongPassword,
                   "读不出数据库服务器的密码文件“" + server.passwordFile.string() + "”，请检查后再试！");
}

}  // namespace store
