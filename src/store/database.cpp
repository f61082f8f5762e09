#include "store/database.h"

#include <algorithm>

#include "store/cursor.h"
#include "store/error.h"

namespace store {
namespace {

constexpr std::size_t mostIdle = 200;  // prepared statements that wait for their next use

struct Ending {  // of the outermost unit, whatever comes of it
  int& depth;
  ~Ending() { depth = 0; }
};

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

Database::~Database() {
  byText_.clear();
  idle_.clear();
}

Engine& Database::engine() {
  if (!engine_) engine_ = opener_();
  return *engine_;
}

void Database::close() {
  if (!engine_) return;
  settle();
  if (inUnit()) return;  // its rows are not on the disk yet
  byText_.clear();
  idle_.clear();
  engine_.reset();
}

void Database::replace(Opener opener) {
  close();
  opener_ = std::move(opener);
  ++generation_;
}

void Database::settle() {
  for (Cursor* cursor : cursors_) cursor->release();
}

long long Database::write(const Table& table, const std::string& sql, const std::vector<Cell>& values,
                          std::int64_t rowNo) {
  failIfLost();
  // Outside a unit no read may stay under way: two computers that read while they write would wait for each other.
  for (Cursor* cursor : cursors_) {
    if (&cursor->table() == &table) {
      cursor->pin();
      rowNo == manyRows ? cursor->forget() : cursor->forget(rowNo);
    } else if (!inUnit()) {
      cursor->release();
    }
  }
  Engine& to = engine();
  try {
    Loan statement(*this, sql, values);
    statement->step();
  } catch (const StoreError& error) {
    if (!inUnit() || to.inTransaction()) throw;
    throw withNothingSaved(error);
  }
  const long long changes = to.changes();
  if (!inUnit()) to.committed();
  return changes;
}

void Database::beginUnit() {
  if (depth_ == 0) {
    settle();
    engine().begin();
  }
  ++depth_;
}

void Database::finishUnit() {
  if (depth_ > 1) {
    --depth_;
    return;
  }
  const Ending ending{depth_};
  commit();
  engine_->committed();
}

void Database::abandonUnit() noexcept {
  try {
    finishUnit();
  } catch (const StoreError&) {  // the error that is on its way already told the person that it went wrong
  }
}

// The engine rolls back by itself when the disk is full or fails: what came before is gone too.
void Database::failIfLost() const {
  if (inUnit() && !engine_->inTransaction()) {
    throw withNothingSaved(StoreError(Fault::Other, "前面的内容未能写入磁盘，"));
  }
}

void Database::commit() {
  try {
    failIfLost();
    settle();  // not every engine goes on with a read behind the end of its unit
    engine_->commit();
  } catch (const StoreError& error) {
    engine_->rollback();
    for (Cursor* cursor : cursors_) cursor->forget();
    if (error.fault == Fault::Unsure) throw;
    throw withNothingSaved(error);
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
