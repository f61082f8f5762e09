#include "store/record_set.h"

#include <optional>

#include "base/text.h"
#include "store/condition.h"
#include "store/cursor.h"
#include "store/typing.h"

namespace store {

struct RecordSet::State {
  enum class Editing { Nothing, NewRow, Removed };
  struct Change {
    std::size_t column;
    Value value;
  };

  State(Store& of, Connection to) : store(&of), connection(to) {}

  Store* store;
  Connection connection;
  Sql sql;
  std::optional<Cursor> cursor;
  Editing editing = Editing::Nothing;
  std::vector<Change> changes;  // of the current or the new row, not written yet
  // Screens read the columns of each row in the same order: the nth name asked for in a row is a good guess.
  std::vector<std::pair<std::string_view, std::size_t>> guesses;
  std::size_t asked = 0;
  // New rows mostly have the columns of the one before.
  std::vector<const Column*> insertedColumns;
  std::string insertSql;
  std::string shown;  // what text() has given out

  Cursor& rows() {
    if (cursor) return *cursor;
    throw StoreError(Fault::RowGone, "还没有打开数据表！");
  }

  void leaveRow() {
    editing = Editing::Nothing;
    changes.clear();
    asked = 0;
  }

  std::size_t column(std::string_view name) {
    const std::size_t turn = asked++;
    if (turn < guesses.size() && guesses[turn].first == name) return guesses[turn].second;
    const auto& columns = rows().query().columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (!base::sameText(columns[i]->name, name)) continue;
      if (turn < 2 * columns.size())
        guesses.resize(std::max(guesses.size(), turn + 1)), guesses[turn] = {columns[i]->name, i};
      return i;
    }
    columnOf(rows().table(), std::string(name));
    throw StoreError(Fault::NoSuchColumn, "打开的记录中没有“" + base::left(name, 40) + "”这一栏！");
  }

  // The row is the one in the table, and the column of this type: it need not be made a value first.
  bool asStored(std::size_t index, Type type) {
    return editing != Editing::NewRow && changes.empty() && rows().query().columns[index]->type == type;
  }

  Value at(std::size_t index) {
    for (const Change& change : changes) {
      if (change.column == index) return change.value;
    }
    if (editing == Editing::NewRow) return {};
    return rows().value(index);
  }

  void mustBeWritable() {
    if (rows().query().grouped) throw StoreError(Fault::Statement, "分组得到的记录不能修改！");
  }

  // What many rows of the set are to hold; the set is read anew behind it.
  std::pair<const Column*, Cell> wholly(std::string_view name, const Value& value) {
    mustBeWritable();
    leaveRow();
    const Column* one = rows().query().columns[column(name)];
    rows().drop();
    return {one, cell(typed(value, *one))};
  }

  void write() {
    Cursor& at = rows();
    const Table& table = at.table();
    const Phrases& phrases = at.database().engine().phrases();
    std::vector<const Column*> columns;
    std::vector<Cell> values;
    columns.reserve(changes.size());
    values.reserve(changes.size() + 1);
    for (const Change& change : changes) {
      columns.push_back(at.query().columns[change.column]);
      values.push_back(cell(change.value));
    }
    if (editing == Editing::NewRow) {
      at.drop();  // nothing comes behind a new row
      if (columns != insertedColumns || insertSql.empty()) {
        insertedColumns = columns;
        insertSql = insertStatement(table, columns, phrases);
      }
      at.database().write(table, insertSql, values, Database::newRow);
      at.standOn(at.database().engine().lastRowNo());
    } else if (!changes.empty()) {
      values.emplace_back(at.rowNo());
      if (at.database().write(table, updateStatement(table, columns, phrases), values, at.rowNo()) == 0) {
        throw StoreError(Fault::RowGone, "这条记录已被删除，请刷新后再试！");
      }
    }
  }
};

RecordSet::RecordSet(Store& store, Connection connection) : state_(std::make_unique<State>(store, connection)) {}
RecordSet::RecordSet(Store& store, const Sql& sql, Connection connection) : RecordSet(store, connection) { open(sql); }
RecordSet::~RecordSet() = default;
RecordSet::RecordSet(RecordSet&&) noexcept = default;
RecordSet& RecordSet::operator=(RecordSet&&) noexcept = default;

void RecordSet::open(const Sql& sql) {
  state_->leaveRow();
  state_->guesses.clear();
  state_->insertSql.clear();
  state_->cursor.reset();
  const std::shared_ptr<Database> database = state_->store->shared(state_->connection);
  state_->cursor.emplace(database, database->planned(sql, state_->connection));
  state_->sql = sql;
}

void RecordSet::refresh() { open(Sql(state_->sql)); }

long long RecordSet::count() { return state_->rows().count(); }
bool RecordSet::empty() { return state_->rows().empty(); }

void RecordSet::first() {
  state_->leaveRow();
  state_->rows().rewind();
}

void RecordSet::last() {
  state_->leaveRow();
  state_->rows().last();
}

void RecordSet::next() {
  state_->leaveRow();
  state_->rows().next();
}

bool RecordSet::atEnd() { return state_->editing != State::Editing::NewRow && !state_->rows().atRow(); }

Value RecordSet::get(std::string_view column) { return state_->at(state_->column(column)); }

std::string_view RecordSet::text(std::string_view column) {
  const std::size_t index = state_->column(column);
  if (state_->asStored(index, Type::Text)) return state_->rows().text(index);
  const Value value = state_->at(index);
  state_->shown = value.text();
  return value.isNull() ? std::string_view() : state_->shown;
}

base::Money RecordSet::money(std::string_view column) {
  const std::size_t index = state_->column(column);
  if (state_->asStored(index, Type::Money)) return state_->rows().money(index);
  return state_->at(index).money();
}

void RecordSet::set(std::string_view column, Value value) {
  state_->mustBeWritable();
  const std::size_t index = state_->column(column);
  if (state_->editing == State::Editing::Removed) throw StoreError(Fault::RowGone, "这条记录已被删除！");
  if (state_->editing == State::Editing::Nothing) state_->rows().rowNo();
  Value fitting = typed(std::move(value), *state_->rows().query().columns[index]);
  for (State::Change& change : state_->changes) {
    if (change.column == index) {
      change.value = std::move(fitting);
      return;
    }
  }
  state_->changes.push_back({index, std::move(fitting)});
}

void RecordSet::addNew() {
  state_->mustBeWritable();
  state_->leaveRow();
  state_->editing = State::Editing::NewRow;
}

void RecordSet::update() {
  state_->mustBeWritable();
  if (state_->editing == State::Editing::Removed) return;
  state_->write();
  state_->leaveRow();
}

void RecordSet::remove() {
  state_->mustBeWritable();
  Cursor& rows = state_->rows();
  if (state_->editing == State::Editing::NewRow) return state_->leaveRow();
  if (state_->editing == State::Editing::Removed) return;
  const Table& table = rows.table();
  rows.database().write(table, removeStatement(table, rows.database().engine().phrases()), {rows.rowNo()},
                        rows.rowNo());
  state_->leaveRow();
  state_->editing = State::Editing::Removed;
}

long long RecordSet::setAll(std::string_view name, const Value& value) {
  const auto [column, stored] = state_->wholly(name, value);
  Cursor& rows = state_->rows();
  std::vector<Cell> values = rows.query().values;
  values.push_back(stored);
  Database& database = rows.database();
  return database.write(rows.table(), updateAllStatement(rows.query(), *column, database.engine().phrases()), values);
}

long long RecordSet::setMarked(std::span<const std::int64_t> marks, std::string_view name, const Value& value) {
  const auto [column, stored] = state_->wholly(name, value);
  Cursor& rows = state_->rows();
  Database& database = rows.database();
  const std::string sql = updateRowsStatement(rows.query(), *column, database.engine().phrases(), readTogether);
  long long changed = 0;
  inPortions(marks, [&](std::vector<Cell> rowNos) {
    rowNos.insert(rowNos.begin(), stored);
    changed += database.write(rows.table(), sql, rowNos);
  });
  return changed;
}

long long RecordSet::removeAll() {
  state_->mustBeWritable();
  state_->leaveRow();
  Cursor& rows = state_->rows();
  rows.drop();
  return rows.database().write(rows.table(), removeAllStatement(rows.query()), rows.query().values);
}

bool RecordSet::hasMarks() { return !state_->rows().query().grouped; }
std::int64_t RecordSet::mark() { return state_->rows().rowNo(); }

bool RecordSet::goTo(std::int64_t mark) {
  state_->leaveRow();
  return state_->rows().goTo(mark);
}

void RecordSet::visit(std::span<const std::int64_t> marks, const std::function<void(bool there)>& visit) {
  state_->rows().visit(marks, [&](bool there) {
    state_->leaveRow();
    visit(there);
  });
}

RecordSet RecordSet::another() const { return RecordSet(*state_->store, state_->sql, state_->connection); }

std::vector<std::string> RecordSet::fields() {
  std::vector<std::string> result;
  for (const Column* column : state_->rows().query().columns) result.emplace_back(column->name);
  return result;
}

std::vector<Type> RecordSet::types() {
  std::vector<Type> result;
  for (const Column* column : state_->rows().query().columns) result.push_back(column->type);
  return result;
}

}  // namespace store
