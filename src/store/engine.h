// What the store asks of a database engine. Everything above speaks to this; only an engine's own file knows which it
// is.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "store/value.h"

namespace store {

// A value as it is stored: amounts as tenths of a fen, dates as yyyy-mm-dd, moments as yyyy-mm-dd hh:mm:ss, yes as 1.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string, Bytes>;

enum class Stored { Text, Whole, Real, Bytes };  // the form in which a column holds its values

// How much of its answer a statement is asked for: an answer of many rows is read as it is walked.
enum class Rows { Few, Many };

// A prepared statement. Places and columns count from 0. Every operation raises StoreError.
class Statement {
 public:
  virtual ~Statement() = default;
  virtual void bind(std::size_t place, const Cell& cell) = 0;
  virtual bool step() = 0;   // on to the next row; false behind the last
  virtual void reset() = 0;  // ends the run and lets go of what it locked
  virtual bool isNull(int column) const = 0;
  virtual std::int64_t integer(int column) const = 0;
  virtual double real(int column) const = 0;
  // Of a text or of bytes, until the next step; data() is null for Null.
  virtual std::string_view text(int column) const = 0;
};

// The few things that engines say differently. Arguments are finished pieces of the engine's own language.
class Phrases {
 public:
  virtual ~Phrases() = default;
  virtual std::string place(std::size_t index, Stored form) const = 0;  // of a bound value
  virtual std::string rowNumber() const = 0;                            // the definition of row_no, never given twice
  virtual std::string columnType(Type type) const = 0;
  virtual std::string key(const std::string& column, Type type) const = 0;      // what rows are ordered and grouped by
  virtual std::string indexed(const std::vector<std::string>& keys) const = 0;  // what serves an order by them
  virtual std::string folded(const std::string& text) const = 0;                // compares without regard to case
  virtual std::string byBytes(const std::string& column, Type type) const = 0;  // compares with regard to case
  virtual std::string like(const std::string& text, const std::string& pattern) const = 0;
  virtual std::string shown(const std::string& value, Type type) const = 0;  // as Value::text() shows it
  virtual std::string left(const std::string& text, const std::string& count) const = 0;
  virtual std::string month(const std::string& date) const = 0;  // Null for the empty date
  virtual std::string year(const std::string& date) const = 0;
  virtual std::string dateOf(const std::string& text) const = 0;  // the stored form of a text; Null when it is no date
  virtual std::string numberOf(const std::string& text) const = 0;
};

// A name for a connection, under which it leaves tokens of its units.
std::string newDesk();

class Engine {
 public:
  virtual ~Engine() = default;
  virtual const Phrases& phrases() const = 0;
  virtual std::unique_ptr<Statement> prepare(const std::string& sql, Rows rows = Rows::Few) = 0;
  virtual void execute(const std::string& sql) = 0;
  virtual void begin() = 0;   // with the write lock, at once
  virtual void commit() = 0;  // with the answer lost it asks what became of the unit: see Fault::Unsure
  virtual void rollback() noexcept = 0;
  virtual bool spoiled() const { return false; }  // by a fault: opened again, it lets go of what it may still lock
  virtual bool inTransaction() const = 0;
  virtual void committed() = 0;  // called behind each write that has reached the disk: others who wait go first
  virtual void install() = 0;    // what the engine needs in the database itself; when the schema is made or raised
  virtual long long changes() const = 0;
  virtual long long lastRowNo() const = 0;
  virtual int version() = 0;
  virtual void setVersion(int version) = 0;
  virtual std::vector<std::string> columnsOf(std::string_view table) = 0;  // none when there is no such table
};

}  // namespace store
