#include "store/postgres_statement.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "base/text.h"
#include "store/error.h"

namespace store {
namespace {

constexpr int firstWindow = 32, largestWindow = 4096;
constexpr std::size_t windowBytes = 1 << 20;
constexpr Oid bytesType = 17;

// The server's texts hold no NUL. It stands as two signs of a kind that no other text has, in its place of the order.
constexpr char escape = '\x01';
constexpr char escapedNul = '\x01', escapedEscape = '\x02';

bool needsEscape(std::string_view text) {
  return std::ranges::any_of(text, [](char c) { return c == '\0' || c == escape; });
}

std::string escaped(const std::string& text) {
  if (!needsEscape(text)) return text;
  std::string result;
  for (char c : text) {
    if (c == '\0' || c == escape) result += escape;
    result += c == '\0' ? escapedNul : c == escape ? escapedEscape : c;
  }
  return result;
}

std::string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != escape || i + 1 == text.size()) {
      result += text[i];
    } else {
      result += text[++i] == escapedNul ? '\0' : escape;
    }
  }
  return result;
}

std::string bytesOf(std::string_view written) {  // as the server sends a field: a NUL stands behind it
  std::size_t size = 0;
  const std::unique_ptr<unsigned char, void (*)(void*)> bytes(
      PQunescapeBytea(reinterpret_cast<const unsigned char*>(written.data()), &size), PQfreemem);
  return {reinterpret_cast<const char*>(bytes.get()), size};
}

template <class Number> std::string numberText(Number number) {
  char buffer[64];
  return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr);
}

template <class Number> Number numberOf(std::string_view text) {
  Number number{};
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

Parameter parameter(const Cell& cell) {
  if (const auto* text = std::get_if<std::string>(&cell)) return {escaped(base::validUtf8(*text))};
  if (const auto* integer = std::get_if<std::int64_t>(&cell)) return {numberText(*integer)};
  if (const auto* real = std::get_if<double>(&cell)) return {numberText(*real)};
  if (const auto* bytes = std::get_if<Bytes>(&cell)) {
    return {std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()), true};
  }
  return {};
}

}  // namespace

PostgresStatement::PostgresStatement(PostgresSession& session, Written& written, const std::string& sql, Rows rows)
    : session_(session), written_(written), sql_(sql) {
  if (sql.starts_with("insert")) {
    kind_ = Kind::Insert;
    sql_ += " returning row_no";
  } else if (sql.starts_with("select")) {
    kind_ = rows == Rows::Many ? Kind::Many : Kind::Few;
  } else {
    kind_ = Kind::Change;
  }
}

PostgresStatement::~PostgresStatement() {
  closeCursor();
  if (!prepared_.empty()) session_.forgetPrepared(prepared_, preparedOn_);
}

void PostgresStatement::bind(std::size_t place, const Cell& cell) {
  if (parameters_.size() <= place) parameters_.resize(place + 1);
  parameters_[place] = parameter(cell);
}

bool PostgresStatement::step() {
  decoded_.clear();
  if (running_ && ++row_ < PQntuples(answer_.get())) return true;
  if (kind_ == Kind::Many) return fetchWindow();
  if (running_) return false;
  answer_ = runPrepared();
  running_ = true;
  row_ = 0;
  if (kind_ == Kind::Few) return PQntuples(answer_.get()) > 0;
  note(answer_.get());
  return false;
}

Answer PostgresStatement::runPrepared() {
  session_.ready();
  const bool fresh = prepared_.empty() || preparedOn_ != session_.connectionNumber();
  if (fresh) prepared_ = session_.newName();
  std::vector<Ask> asks;
  if (fresh) asks.push_back({sql_, prepared_});
  asks.push_back({"", prepared_, &parameters_});
  try {
    Answers answers = kind_ == Kind::Few ? session_.run(asks) : session_.write(asks);
    preparedOn_ = session_.connectionNumber();
    return std::move(answers.back());
  } catch (const StoreError&) {
    if (fresh) prepared_.clear();
    throw;
  }
}

void PostgresStatement::note(const PGresult* answer) {
  written_.rows = numberOf<long long>(PQcmdTuples(const_cast<PGresult*>(answer)));
  if (kind_ == Kind::Insert) written_.lastRowNo = numberOf<long long>(PQgetvalue(answer, PQntuples(answer) - 1, 0));
}

// Windows grow as long as the rows are small: a look costs a few rows, a walk few ways to the server.
bool PostgresStatement::fetchWindow() {
  if (complete_) return false;
  if (!running_) {
    window_ = firstWindow;
    const std::string name = session_.newName();
    answer_ = session_.openCursor(name, sql_, parameters_, window_);
    transaction_ = session_.transactionNumber();
    cursor_ = name;
    running_ = true;
  } else {
    const std::size_t bytes = std::max<std::size_t>(PQresultMemorySize(answer_.get()), 1);
    const std::size_t fitting = windowBytes * static_cast<std::size_t>(window_) / bytes;
    window_ = std::clamp(static_cast<int>(std::min<std::size_t>(fitting, largestWindow)), 1, window_ * 4);
    answer_ = session_.fetch(cursor_, transaction_, window_);
  }
  row_ = 0;
  const int rows = PQntuples(answer_.get());
  if (rows < window_) {
    complete_ = true;
    closeCursor();
  }
  return rows > 0;
}

void PostgresStatement::closeCursor() {
  if (cursor_.empty()) return;
  session_.closeCursor(cursor_, transaction_);
  cursor_.clear();
}

void PostgresStatement::reset() {
  closeCursor();
  answer_.reset();
  running_ = complete_ = false;
}

bool PostgresStatement::isNull(int column) const { return PQgetisnull(answer_.get(), row_, column) != 0; }

std::string_view PostgresStatement::field(int column) const {
  return {PQgetvalue(answer_.get(), row_, column), static_cast<std::size_t>(PQgetlength(answer_.get(), row_, column))};
}

std::int64_t PostgresStatement::integer(int column) const { return numberOf<std::int64_t>(field(column)); }
double PostgresStatement::real(int column) const { return numberOf<double>(field(column)); }

std::string_view PostgresStatement::text(int column) const {
  if (isNull(column)) return {};
  const std::string_view raw = field(column);
  const bool bytes = PQftype(answer_.get(), column) == bytesType;
  if (!bytes && raw.find(escape) == std::string_view::npos) return raw;
  decoded_.resize(static_cast<std::size_t>(PQnfields(answer_.get())));
  std::string& decoded = decoded_[static_cast<std::size_t>(column)];
  decoded = bytes ? bytesOf(raw) : unescaped(raw);
  return decoded;
}

}  // namespace store
