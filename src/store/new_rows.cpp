#include "store/new_rows.h"

#include <stdexcept>

#include "store/condition.h"
#include "store/database.h"
#include "store/query.h"
#include "store/typing.h"

namespace store {

NewRows::NewRows(Store& store, std::string_view table, std::initializer_list<std::string_view> columns,
                 Connection connection)
    : store_(store), connection_(connection), table_(*findTable(table)) {
  for (const std::string_view name : columns) columns_.push_back(&columnOf(table_, std::string(name)));
  cells_.reserve(rowsTogether * columns_.size());
}

void NewRows::append(Value value) {
  const Column& column = *columns_[cells_.size() % columns_.size()];
  cells_.push_back(cell(typed(std::move(value), column)));
  if (cells_.size() == rowsTogether * columns_.size()) write();
}

void NewRows::write() {
  if (cells_.empty()) return;
  std::vector<Cell> cells;  // not kept when they are refused: what comes after them can still be written
  cells.swap(cells_);
  const std::size_t rows = cells.size() / columns_.size();
  if (rows * columns_.size() != cells.size()) throw std::logic_error("the last row takes more values");
  Database& database = store_.database(connection_);
  const auto statement = [&](std::size_t count) {
    return insertStatement(table_, columns_, database.engine().phrases(), count);
  };
  if (rows == rowsTogether && together_.empty()) together_ = statement(rowsTogether);
  database.write(table_, rows == rowsTogether ? together_ : statement(rows), cells, Database::newRow);
  lastMark_ = database.engine().lastRowNo();
  cells.clear();
  cells_.swap(cells);
}

}  // namespace store
