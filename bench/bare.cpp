#include "bare.h"

#include <stdexcept>

#include "store/files.h"
#include "store/store.h"

namespace bench {
namespace {

void check(int code) {
  if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errstr(code));
}

}  // namespace

Bare::Bare(const std::filesystem::path& programFolder, store::Connection which) {
  const store::Location at =
      store::locate(store::connectionText(programFolder, store::livePath(which), store::password(which)));
  sqlite3* connection = nullptr;
  const int opened = sqlite3_open_v2(at.path.c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr);
  connection_.reset(connection);
  check(opened);
  sqlite3mc_config(connection, "cipher", sqlite3mc_cipher_index("aegis"));
  check(sqlite3_key(connection, at.password.data(), static_cast<int>(at.password.size())));
  prepare("select count(*) from sqlite_master").readAll();
}

void Bare::run(const std::string& sql) {
  check(sqlite3_exec(connection_.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

BareStatement Bare::prepare(const std::string& sql) {
  BareStatement result;
  sqlite3_stmt* statement = nullptr;
  check(sqlite3_prepare_v3(connection_.get(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
  result.statement_.reset(statement);
  return result;
}

void BareStatement::bind(int place, const std::string& text) {
  check(sqlite3_bind_text64(statement_.get(), place, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void BareStatement::bind(int place, long long number) { check(sqlite3_bind_int64(statement_.get(), place, number)); }

bool BareStatement::step() {
  const int code = sqlite3_step(statement_.get());
  if (code != SQLITE_ROW && code != SQLITE_DONE) throw std::runtime_error(sqlite3_errstr(code));
  return code == SQLITE_ROW;
}

std::size_t BareStatement::readAll() {
  std::size_t characters = 0;
  const int columns = sqlite3_column_count(statement_.get());
  while (step()) {
    for (int i = 0; i < columns; ++i) {
      if (sqlite3_column_text(statement_.get(), i)) {
        characters += static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), i));
      }
    }
  }
  reset();
  return characters;
}

std::string BareStatement::text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  return text ? text : "";
}

}  // namespace bench
