#include "store/database.h"

#include <algorithm>

#include "store/cursor.h"
#include "store/error.h"
#include "store/query.h"

namespace store {
namespace {

constexpr std::size_t mostIdle = 200;  // prepared statements that wait for their next use
constexpr std::size_t mostPlans = 500;

}  // namespace

Loan::Loan(Database& database, std::string sql, const std::vector<Cell>& values, Rows rows)
    : database_(&database), sql_(std::move(sql)), statement_(database.take(sql_, rows)) {
  for (std::size_t i = 0; i < values.size(); ++i) statement_->bind(i, values[i]);
}

Loan::Loan(Loan&& other) noexcept { *this = std::move(other); }

Loan& Loan::operator=(Loan&& other) noexcept {
  std::swap(database_, other.database_);
  std::swap(sql_, other.sql_);
  std::swap(statement_, other.statement_);
  return *this;
}

void Loan::giveBack() {
  if (!statement_) return;
  statement_->reset();
  database_->keep(std::move(sql_), std::move(statement_));
}

Database::~Database() { forgetStatements(); }

void Database::forgetStatements() {
  byText_.clear();
  idle_.clear();
  plans_.clear();
}

Engine& Database::engine() {
  if (!engine_) engine_ = between_ ? between_(opener_) : opener_();
  return *engine_;
}

void Database::close() {
  if (!engine_) return;
  settle();
  if (inUnit()) return;  // its rows are not on the disk yet
  forgetStatements();
  engine_.reset();
}

void Database::interpose(Interposer between) {
  settle();
  forgetStatements();
  between_ = std::move(between);
  if (engine_) engine_ = between_([this] { return std::move(engine_); });
}

void Database::replace(Opener opener) {
  close();
  opener_ = std::move(opener);
  ++generation_;
}

std::shared_ptr<const Query> Database::planned(const Sql& sql, Connection connection) {
  const auto made = [&] {
    return std::make_shared<const Query>(plan(dialect::parse(sql), connection, engine().phrases()));
  };
  if (!sql.values().empty()) return made();
  if (const auto known = plans_.find(std::string(sql.text())); known != plans_.end()) return known->second;
  if (plans_.size() == mostPlans) plans_.clear();
  return plans_.emplace(sql.text(), made()).first->second;
}

void Database::settle() {
  for (Cursor* cursor : cursors_) cursor->release();
}

long long Database::write(const Table& table, const std::string& sql, const std::vector<Cell>& values,
                          std::int64_t rowNo) {
  failIfLost();
  for (Cursor* cursor : cursors_) {
    if (&cursor->table() != &table) continue;
    cursor->pin();
    rowNo == manyRows ? cursor->forget() : cursor->forget(rowNo);
  }
  if (inUnit()) return run(table, sql, values);
  beginUnit();
  long long changes = 0;
  try {
    changes = run(table, sql, values);
  } catch (...) {
    rollback();
    throw;
  }
  finishUnit();
  return changes;
}

long long Database::run(const Table& table, const std::string& sql, const std::vector<Cell>& values) {
  Loan(*this, sql, values)->step();
  const long long changes = engine_->changes();
  written_ |= changes > 0 && !table.remade;
  return changes;
}

void Database::beginUnit() {
  if (depth_ == 0) {
    settle();  // two computers that read while they write would wait for each other
    engine().begin();
  }
  ++depth_;
}

void Database::finishUnit() {
  if (depth_ > 1) {
    --depth_;
    return;
  }
  try {
    failIfLost();
    settle();  // not every engine goes on with a read behind the end of its unit
    engine_->commit();
  } catch (...) {
    rollback();
    if (engine_->spoiled()) close();
    throw;
  }
  depth_ = 0;
  if (std::exchange(written_, false)) ++saved_;
  engine_->committed();
  if (engine_->spoiled()) close();
}

void Database::abandonUnit() noexcept {
  if (depth_ == 1) return rollback();
  --depth_;
  doomed_ = true;
}

void Database::rollback() noexcept {
  depth_ = 0;
  doomed_ = written_ = false;
  settle();
  engine_->rollback();
  for (Cursor* cursor : cursors_) cursor->forget();
}

// The engine rolls back by itself when the disk is full or fails: what came before is gone too.
void Database::failIfLost() const {
  if (inUnit() && (doomed_ || !engine_->inTransaction())) {
    throw StoreError(Fault::Other, "这次操作在前面已经出错，不能继续。请重新做一次！");
  }
}

void Database::dismiss(Cursor& cursor) {
  const auto found = std::find(cursors_.rbegin(), cursors_.rend(), &cursor);
  if (found != cursors_.rend()) cursors_.erase(std::next(found).base());
}

std::unique_ptr<Statement> Database::take(const std::string& sql, Rows rows) {
  const auto found = byText_.find(sql);
  if (found == byText_.end()) return engine().prepare(sql, rows);
  const auto entry = found->second;
  std::unique_ptr<Statement> statement = std::move(entry->second);
  byText_.erase(found);
  idle_.erase(entry);
  return statement;
}

void Database::keep(std::string sql, std::unique_ptr<Statement> statement) {
  idle_.emplace_front(std::move(sql), std::move(statement));
  byText_.emplace(idle_.front().first, idle_.begin());
  if (idle_.size() <= mostIdle) return;
  const auto oldest = std::prev(idle_.end());
  const auto [from, to] = byText_.equal_range(oldest->first);
  byText_.erase(std::find_if(from, to, [&](const auto& entry) { return entry.second == oldest; }));
  idle_.pop_back();
}

}  // namespace store
