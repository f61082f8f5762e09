// The database server of a school that has outgrown one shared folder: where it is, by a small file beside the
// configuration database. Without the file the embedded databases are used.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace store {

struct Server {
  std::string host, port, database, user;  // a host that begins with / is the folder of a local socket
  std::filesystem::path passwordFile;      // its first line is the password; empty: none is sent
  int timeout = 30;                        // seconds for one statement; the desk waits a little longer
};

// 配置文件/server.ini below the program folder, section [server]: host, port, database, user, passwordfile (beside the
// file, when it names no folder), timeout. Nothing when there is no such file; a file that names no host or no database
// raises StoreError.
std::optional<Server> serverOf(const std::filesystem::path& programFolder);
std::filesystem::path serverFile(const std::filesystem::path& programFolder);
std::string passwordOf(const Server& server);  // raises Fault::WrongPassword when its file cannot be read

}  // namespace store
