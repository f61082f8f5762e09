// One database behind an engine: its prepared statements, its units of work, the cursors that read from it.
#pragma once

#include <functional>
#include <list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "store/catalogue.h"
#include "store/engine.h"
#include "store/sql.h"

namespace store {

class Cursor;
struct Query;
class Database;

// A prepared statement on loan; handed back, it is kept for the next one of the same text.
class Loan {
 public:
  Loan() = default;
  Loan(Database& database, std::string sql, const std::vector<Cell>& values, Rows rows = Rows::Few);
  ~Loan() { giveBack(); }
  Loan(Loan&& other) noexcept;
  Loan& operator=(Loan&& other) noexcept;
  explicit operator bool() const { return statement_ != nullptr; }
  Statement* operator->() const { return statement_.get(); }
  Statement& operator*() const { return *statement_; }
  void giveBack();

 private:
  Database* database_ = nullptr;
  std::string sql_;
  std::unique_ptr<Statement> statement_;
};

class Database {
 public:
  using Opener = std::function<std::unique_ptr<Engine>()>;
  using Interposer = std::function<std::unique_ptr<Engine>(const Opener&)>;

  explicit Database(Opener opener) : opener_(std::move(opener)) {}
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  Engine& engine();                    // opens the database when it is not open
  void close();                        // not inside a unit; cursors keep their place and open it again
  void replace(Opener opener);         // another database from now on: cursors of the old one have lost theirs
  void interpose(Interposer between);  // see Store::interpose
  int generation() const { return generation_; }

  // What a statement means to this engine. Screens ask the same things again and again: those without values are kept.
  std::shared_ptr<const Query> planned(const Sql& sql, Connection connection);

  void settle();  // no read is under way any longer
  // An insert, update or delete of one row, or of many; returns the number of rows. Every cursor on the table is safe
  // from it.
  static constexpr std::int64_t newRow = 0, manyRows = -1;
  long long write(const Table& table, const std::string& sql, const std::vector<Cell>& values,
                  std::int64_t rowNo = manyRows);

  void beginUnit();
  void finishUnit();            // the outermost one commits, or raises StoreError and nothing of it remains
  void abandonUnit() noexcept;  // the outermost one rolls back; an inner one leaves no other way to those around it
  bool inUnit() const { return depth_ > 0; }
  long long saved() const { return saved_; }  // see Store::saved

  void enlist(Cursor& cursor) { cursors_.push_back(&cursor); }
  void dismiss(Cursor& cursor);

 private:
  friend class Loan;
  std::unique_ptr<Statement> take(const std::string& sql, Rows rows);
  void forgetStatements();
  void keep(std::string sql, std::unique_ptr<Statement> statement);
  void commit();
  long long run(const Table& table, const std::string& sql, const std::vector<Cell>& values);
  void rollback() noexcept;
  void failIfLost() const;

  Opener opener_;
  Interposer between_;
  std::unique_ptr<Engine> engine_;
  std::list<std::pair<std::string, std::unique_ptr<Statement>>> idle_;  // the latest first
  std::unordered_multimap<std::string_view, decltype(idle_)::iterator> byText_;
  std::unordered_map<std::string, std::shared_ptr<const Query>> plans_;
  std::vector<Cursor*> cursors_;
  int depth_ = 0;
  bool doomed_ = false;   // a unit inside the open one was abandoned
  bool written_ = false;  // something that counts as saved once the unit is
  long long saved_ = 0;
  int generation_ = 0;
};

}  // namespace store
