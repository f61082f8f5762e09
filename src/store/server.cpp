#include "store/server.h"

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
  if (std::error_code none; !std::filesystem::exists(file, none)) return std::nullopt;
  const auto value = [&](std::string_view key) { return GetFromINI("server", key, file); };
  Server server{value("host"), value("port"), value("database"), value("user"), {}};
  if (server.host.empty() || server.database.empty()) {
    throw StoreError(Fault::Missing, "文件“" + file.string() + "”中没有写明 host 和 database，请补上后再试！");
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
