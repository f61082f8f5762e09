#include "store/postgres_engine.h"

#include "store/postgres_phrases.h"
#include "store/postgres_session.h"
#include "store/postgres_statement.h"

namespace store {
namespace {

class PostgresEngine final : public Engine {
 public:
  PostgresEngine(const PostgresSchema& place, std::function<void(bool)> onWait) : session_(place, std::move(onWait)) {}

  const Phrases& phrases() const override { return postgresPhrases(); }
  std::unique_ptr<Statement> prepare(const std::string& sql, Rows rows) override {
    return std::make_unique<PostgresStatement>(session_, written_, sql, rows);
  }
  void execute(const std::string& sql) override { session_.run({{sql}}); }
  void begin() override { session_.begin(); }
  void commit() override { session_.commit(); }
  void rollback() noexcept override { session_.rollback(); }
  bool inTransaction() const override { return session_.inUnit(); }
  void committed() override {}  // the server serves who waits in turn
  void install() override {
    for (const std::string& function : postgresFunctions()) execute(function);
    execute("create table if not exists unit_tokens (desk text primary key, token bigint, day date)");
  }
  long long changes() const override { return written_.rows; }
  long long lastRowNo() const override { return written_.lastRowNo; }
  int version() override {
    PostgresStatement statement(session_, written_, "select version from catalogue_version", Rows::Few);
    return statement.step() ? static_cast<int>(statement.integer(0)) : 0;
  }
  void setVersion(int version) override {
    execute("update catalogue_version set version = " + std::to_string(version));
  }
  std::vector<std::string> columnsOf(std::string_view table) override {
    PostgresStatement statement(session_, written_,
                                "select column_name from information_schema.columns "
                                "where table_schema = current_schema() and table_name = $1 order by ordinal_position",
                                Rows::Few);
    statement.bind(0, std::string(table));
    std::vector<std::string> result;
    while (statement.step()) result.emplace_back(statement.text(0));
    return result;
  }

 private:
  PostgresSession session_;
  Written written_;
};

}  // namespace

std::unique_ptr<Engine> openPostgres(const PostgresSchema& place, std::function<void(bool)> onWait) {
  return std::make_unique<PostgresEngine>(place, std::move(onWait));
}

}  // namespace store
