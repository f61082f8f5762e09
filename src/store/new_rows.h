// Adds many rows to one table, some dozens in a statement: for walks that write what they find. Needs a unit of work
// around it. The rows have reached the table after finish(). Raises StoreError, also for rows of an earlier add().
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "store/engine.h"
#include "store/store.h"

namespace store {

class NewRows {
 public:
  NewRows(Store& store, std::string_view table, std::initializer_list<std::string_view> columns,
          Connection connection = Connection::Main);

  // The next values, in the order of the columns, row after row.
  template <class... Values> void add(Values&&... values) { (append(Value(std::forward<Values>(values))), ...); }
  void finish() { write(); }
  std::int64_t lastMark() const { return lastMark_; }  // of the rows that have been written; 0: none yet

 private:
  static constexpr std::size_t rowsTogether = 40;
  void append(Value value);
  void write();

  Store& store_;
  const Connection connection_;
  const Table& table_;
  std::vector<const Column*> columns_;
  std::vector<Cell> cells_;
  std::string together_;  // the statement for as many rows as go into one
  std::int64_t lastMark_ = 0;
};

}  // namespace store
