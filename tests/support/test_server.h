// The throw-away PostgreSQL server that tools/postgres-for-tests starts around the tests.
#pragma once

#include <filesystem>
#include <string>

#include "store/server.h"

namespace support {

bool serverRuns();
bool onServer();  // the suite is asked to run on it: STORE_ENGINE=postgres

// A database of its own with both schemas made, dropped at the end.
class ServerDatabase {
 public:
  ServerDatabase();
  ~ServerDatabase();
  ServerDatabase(const ServerDatabase&) = delete;
  ServerDatabase& operator=(const ServerDatabase&) = delete;

  store::Server server() const;
  void nameIn(const std::filesystem::path& programFolder) const;  // writes the file that leads a store here
  std::string ask(const std::string& sql) const;  // the first cell of an answer; behind the store's back

 private:
  std::string name_;
};

std::string serverFileText(const store::Server& server);

}  // namespace support
