#include "support/test_server.h"

#include <libpq-fe.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "store/store.h"

namespace support {
namespace {

namespace fs = std::filesystem;

constexpr const char* templateName = "office_template";
constexpr const char* underConstruction = "office_template_new";

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

class Administrator {
 public:
  explicit Administrator(const std::string& database)
      : connection_(PQconnectdb(("host=" + variable("STORE_TEST_SERVER") + " user=tests dbname=" + database +
                                 " options='-c client_min_messages=warning'")
                                    .c_str()),
                    PQfinish) {
    if (PQstatus(connection_.get()) != CONNECTION_OK) throw std::runtime_error(PQerrorMessage(connection_.get()));
  }
  std::string ask(const std::string& sql) {
    for (int tries = 0; tries < 100 && gone(); ++tries) {  // a test may have made the server crash
      usleep(50000);
      PQreset(connection_.get());
    }
    const std::unique_ptr<PGresult, void (*)(PGresult*)> answer(PQexec(connection_.get(), sql.c_str()), PQclear);
    const auto status = PQresultStatus(answer.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) {
      throw std::runtime_error(sql + ": " + PQerrorMessage(connection_.get()));
    }
    return PQntuples(answer.get()) ? PQgetvalue(answer.get(), 0, 0) : "";
  }

 private:
  bool gone() {
    const std::unique_ptr<PGresult, void (*)(PGresult*)> answer(PQexec(connection_.get(), "select 1"), PQclear);
    return PQstatus(connection_.get()) != CONNECTION_OK;
  }

  std::unique_ptr<PGconn, void (*)(PGconn*)> connection_;
};

store::Server named(const std::string& database) { return {variable("STORE_TEST_SERVER"), "", database, "tests", {}}; }

void writeFile(const fs::path& programFolder, const store::Server& server) {
  const fs::path file = store::serverFile(programFolder);
  fs::create_directories(file.parent_path());
  std::ofstream(file) << serverFileText(server);
}

// The schemas are made once, by the store itself; every other database is a copy.
void makeTemplate(Administrator& to) {
  to.ask("select pg_advisory_lock(1)");
  const auto stands = to.ask(std::string("select 1 from pg_database where datname = '") + templateName + "'");
  if (stands.empty()) {
    to.ask(std::string("drop database if exists ") + underConstruction);
    to.ask(std::string("create database ") + underConstruction);
    const fs::path folder = fs::temp_directory_path() / ("office-template-" + std::to_string(getpid()));
    writeFile(folder, named(underConstruction));
    {
      store::Store store(folder);
      for (auto which : {store::Connection::Main, store::Connection::Config}) store.database(which);
    }
    fs::remove_all(folder);
    to.ask(std::string("alter database ") + underConstruction + " rename to " + templateName);
  }
  to.ask("select pg_advisory_unlock(1)");
}

Administrator& administrator() {
  static Administrator one("postgres");
  static const bool made = (makeTemplate(one), true);
  static_cast<void>(made);
  return one;
}

}  // namespace

bool serverRuns() { return !variable("STORE_TEST_SERVER").empty(); }
bool onServer() { return variable("STORE_ENGINE") == "postgres"; }

ServerDatabase::ServerDatabase() {
  static std::atomic<int> number = 0;
  name_ = "office_" + std::to_string(getpid()) + "_" + std::to_string(++number);
  administrator().ask("create database " + name_ + " template " + templateName + " strategy file_copy");
}

ServerDatabase::~ServerDatabase() {
  try {
    administrator().ask("drop database if exists " + name_ + " with (force)");
  } catch (const std::exception&) {  // the whole server goes away at the end
  }
}

store::Server ServerDatabase::server() const { return named(name_); }
void ServerDatabase::nameIn(const fs::path& programFolder) const { writeFile(programFolder, server()); }
std::string ServerDatabase::ask(const std::string& sql) const { return Administrator(name_).ask(sql); }

std::string serverFileText(const store::Server& server) {
  return "[server]\nhost=" + server.host + "\nport=" + server.port + "\ndatabase=" + server.database +
         "\nuser=" + server.user + "\npasswordfile=" + server.passwordFile.string() +
         "\ntimeout=" + std::to_string(server.timeout) + "\n";
}

}  // namespace support
