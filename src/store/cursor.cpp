#include "store/cursor.h"

#include <unordered_map>

#include "store/error.h"
#include "store/typing.h"

namespace store {
namespace {

constexpr std::ptrdiff_t readAhead = 64;

}  // namespace

Cursor::Cursor(std::shared_ptr<Database> database, std::shared_ptr<const Query> plan)
    : database_(std::move(database)), plan_(std::move(plan)), generation_(database_->generation()) {
  database_->enlist(*this);
}

Cursor::~Cursor() { database_->dismiss(*this); }

Database& Cursor::database() {
  if (generation_ == database_->generation()) return *database_;
  throw StoreError(Fault::Other, "已经换用另一个数据库，请重新打开本窗口！");
}

void Cursor::rewind() {
  if (place_ != Place::First || !stream_) drop();
}

void Cursor::drop() {
  stream_.giveBack();
  row_.reset();
  rest_.clear();
  ahead_.clear();
  groups_.clear();
  place_ = Place::Before;
}

void Cursor::start() {
  stream_ = Loan(database(), query_.walk, query_.values, Rows::Many);
  step();
  if (place_ == Place::Row) place_ = Place::First;
}

// Goes on after the first row, which may not be the first any more: then all others come after it.
void Cursor::resume() {
  Loan stream(database(), query_.walk, query_.values, Rows::Many);
  bool row = stream->step();
  if (row && stream->integer(0) == rowNo_) {
    stream_ = std::move(stream);
    return;
  }
  std::deque<std::int64_t> others;
  for (; row; row = stream->step()) {
    if (stream->integer(0) != rowNo_) others.push_back(stream->integer(0));
  }
  rest_ = std::move(others);
  place_ = Place::Row;
}

void Cursor::step() {
  row_.reset();         // of the row before, read while the stream was let go of
  place_ = Place::End;  // also when the step fails
  if (!stream_->step()) return stream_.giveBack();
  rowNo_ = stream_->integer(0);
  place_ = Place::Row;
}

void Cursor::last() {
  drop();
  place_ = Place::End;
  const Loan statement(database(), query_.last, query_.values);
  if (!statement->step()) return;
  rowNo_ = statement->integer(0);
  row_ = rowOf(*statement);
  place_ = Place::Row;
}

bool Cursor::atRow() {
  if (place_ == Place::Before) start();
  return place_ != Place::End;
}

void Cursor::next() {
  if (!atRow()) return;
  if (place_ == Place::Broken) throw StoreError(Fault::Other, "读取到一半时中断了，请刷新后再试！");
  if (unread()) resume();
  if (stream_) return step();
  row_.reset();
  place_ = Place::Row;
  if (!groups_.empty()) {
    row_ = std::move(groups_.front());
    groups_.pop_front();
    return;
  }
  while (!rest_.empty()) {
    rowNo_ = rest_.front();
    row_ = fetchAhead();
    rest_.pop_front();
    if (row_) return;
  }
  place_ = Place::End;
}

std::int64_t Cursor::rowNo() {
  if (atRow()) return rowNo_;
  throw StoreError(Fault::RowGone, "当前没有可以操作的记录！");
}

Value Cursor::value(std::size_t column) {
  if (query_.columns[column]->type == Type::Bytes && !query_.grouped) return bytes(column);
  if (!stream_) rowNo();
  if (stream_) return read(*stream_, static_cast<int>(column) + 1, query_.columns[column]->type);
  return heldRow()[column];
}

std::string_view Cursor::text(std::size_t column) {
  if (!stream_) rowNo();
  if (stream_) return stream_->text(static_cast<int>(column) + 1);
  const auto* held = heldRow()[column].as<std::string>();
  return held ? std::string_view(*held) : std::string_view();
}

base::Money Cursor::money(std::size_t column) {
  if (!stream_) rowNo();
  return stream_ ? base::Money::ofUnits(stream_->integer(static_cast<int>(column) + 1)) : heldRow()[column].money();
}

const Cursor::Row& Cursor::heldRow() {
  if (!row_) row_ = fetch(rowNo_);
  if (!row_) throw StoreError(Fault::RowGone, "这条记录已被删除，请刷新后再试！");
  return *row_;
}

void Cursor::standOn(std::int64_t rowNo) {
  drop();
  rowNo_ = rowNo;
  place_ = Place::Row;
}

bool Cursor::goTo(std::int64_t rowNo) {
  standOn(rowNo);
  row_ = fetch(rowNo);
  if (!row_) place_ = Place::End;
  return row_.has_value();
}

namespace {

// The first and the last of rows that lie close together and in order: they are read several times as fast as one by
// one, with the few between them that nobody asked for.
std::optional<std::vector<Cell>> rangeOf(const std::vector<Cell>& portion) {
  std::int64_t last = 0, count = 0;
  for (const Cell& one : portion) {
    const auto rowNo = std::get<std::int64_t>(one);
    if (rowNo == 0) break;
    if (rowNo <= last) return std::nullopt;
    last = rowNo;
    ++count;
  }
  if (count < 2 || last - std::get<std::int64_t>(portion.front()) >= 2 * count) return std::nullopt;
  return std::vector<Cell>{portion.front(), last};
}

}  // namespace

void Cursor::visit(std::span<const std::int64_t> rowNos, const std::function<void(bool there)>& visit) {
  const Phrases& phrases = database().engine().phrases();
  if (together_.empty()) {
    together_ = rowsStatement(query_, phrases, readTogether);
    range_ = rangeStatement(query_, phrases);
  }
  inPortions(rowNos, [&](const std::vector<Cell>& portion) {
    if (const auto range = rangeOf(portion)) return visitRange(portion, *range, visit);
    std::unordered_map<std::int64_t, Row> found;
    {
      const Loan statement(database(), together_, portion);
      while (statement->step()) found.emplace(statement->integer(0), rowOf(*statement));
    }
    for (const Cell& one : portion) {
      const auto rowNo = std::get<std::int64_t>(one);
      if (rowNo == 0) return;
      const auto row = found.find(rowNo);
      standOn(rowNo);
      if (row != found.end()) row_ = std::move(row->second);
      visit(row != found.end());
    }
  });
}

// Each row is read from the stream. When the visitor writes, the stream is let go of: the rows that remain are read one
// by one.
void Cursor::visitRange(const std::vector<Cell>& portion, const std::vector<Cell>& range,
                        const std::function<void(bool there)>& visit) {
  drop();
  stream_ = Loan(database(), range_, range, Rows::Many);
  place_ = Place::Row;
  rowNo_ = 0;
  std::int64_t last = 0;
  for (const Cell& one : portion) {
    const auto rowNo = std::get<std::int64_t>(one);
    if (rowNo == 0) break;
    last = rowNo;
    while (stream_ && rowNo_ < rowNo) {
      if (stream_->step()) rowNo_ = stream_->integer(0);
      else stream_.giveBack();
    }
    visit(stream_ ? rowNo_ == rowNo : goTo(rowNo));
  }
  standOn(last);
}

bool Cursor::empty() {
  if (place_ == Place::Before) return !atRow();
  if (stream_ || row_) return false;
  return !Loan(database(), query_.any, query_.values)->step();
}

long long Cursor::count() {
  Loan statement(database(), query_.count, query_.values);
  return statement->step() ? statement->integer(0) : 0;
}

void Cursor::release() {
  ahead_.clear();
  if (place_ == Place::First && !query_.grouped) return stream_.giveBack();
  try {
    pinStream();
  } catch (...) {  // told to who goes on with the walk
    stream_.giveBack();
    place_ = Place::Broken;
  }
}

void Cursor::pin() {
  if (unread()) resume();
  pinStream();
}

void Cursor::pinStream() {
  if (!stream_) return;
  if (query_.grouped) row_ = rowOf(*stream_);
  while (stream_->step()) {
    if (query_.grouped) {
      groups_.push_back(rowOf(*stream_));
    } else {
      rest_.push_back(stream_->integer(0));
    }
  }
  stream_.giveBack();
  place_ = Place::Row;
}

void Cursor::forget() {
  ahead_.clear();
  if (!query_.grouped) row_.reset();
}

void Cursor::forget(std::int64_t rowNo) {
  ahead_.erase(rowNo);
  if (!query_.grouped && rowNo == rowNo_) row_.reset();
}

Cursor::Row Cursor::rowOf(const Statement& statement) const {
  Row row;
  row.reserve(query_.columns.size());
  for (std::size_t i = 0; i < query_.columns.size(); ++i) {
    row.push_back(read(statement, static_cast<int>(i) + 1, query_.columns[i]->type));
  }
  return row;
}

std::optional<Cursor::Row> Cursor::fetch(std::int64_t rowNo) {
  const Loan statement(database(), rowsStatement(query_, database_->engine().phrases(), 1), {rowNo});
  return statement->step() ? std::optional(rowOf(*statement)) : std::nullopt;
}

// The row at the head of the rest. Nobody else writes during a unit, and what it writes itself is forgotten: there the
// rows behind are read with it.
std::optional<Cursor::Row> Cursor::fetchAhead() {
  const auto known = [&] {
    auto found = ahead_.extract(rowNo_);
    return found ? std::optional(std::move(found.mapped())) : std::nullopt;
  };
  if (std::optional<Row> row = known()) return row;
  if (!database().inUnit() || rest_.size() < readAhead) return fetch(rowNo_);
  std::vector<Cell> rows(rest_.begin(), rest_.begin() + readAhead);
  const Loan statement(*database_, rowsStatement(query_, database_->engine().phrases(), readAhead), rows);
  while (statement->step()) ahead_.insert_or_assign(statement->integer(0), rowOf(*statement));
  return known();
}

Value Cursor::bytes(std::size_t column) {
  const Column& wanted = *query_.columns[column];
  const Loan statement(database(), bytesStatement(query_, wanted, database_->engine().phrases()), {rowNo()});
  if (statement->step()) return read(*statement, 0, wanted.type);
  throw StoreError(Fault::RowGone, "这条记录已被删除，请刷新后再试！");
}

}  // namespace store
