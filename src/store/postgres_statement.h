// A statement on a PostgreSQL server. Few rows come at once; many come a window at a time from a cursor on the server.
#pragma once

#include <string>
#include <vector>

#include "store/engine.h"
#include "store/postgres_session.h"

namespace store {

// What the last statement that wrote has done.
struct Written {
  long long rows = 0, lastRowNo = 0;
};

class PostgresStatement final : public Statement {
 public:
  PostgresStatement(PostgresSession& session, Written& written, const std::string& sql, Rows rows);
  ~PostgresStatement() override;
  PostgresStatement(const PostgresStatement&) = delete;
  PostgresStatement& operator=(const PostgresStatement&) = delete;

  void bind(std::size_t place, const Cell& cell) override;
  bool step() override;
  void reset() override;
  bool isNull(int column) const override;
  std::int64_t integer(int column) const override;
  double real(int column) const override;
  std::string_view text(int column) const override;

 private:
  enum class Kind { Few, Many, Insert, Change };

  Answer runPrepared();
  void note(const PGresult* answer);
  bool fetchWindow();
  void closeCursor();
  std::string_view field(int column) const;

  PostgresSession& session_;
  Written& written_;
  std::string sql_;
  Kind kind_;
  Parameters parameters_;
  std::string prepared_;  // its name on the server
  int preparedOn_ = -1;   // the connection on which it has it
  std::string cursor_;
  int transaction_ = 0;  // of the cursor
  int window_ = 0;       // rows asked for at once
  bool complete_ = false, running_ = false;
  Answer answer_;
  int row_ = 0;
  mutable std::vector<std::string> decoded_;  // texts of this row that stand otherwise on the server
};

}  // namespace store
