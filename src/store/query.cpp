#include "store/query.h"

#include <algorithm>

#include "base/text.h"
#include "store/condition.h"
#include "store/error.h"
#include "store/typing.h"

namespace store {
namespace {

const Table& tableOf(const std::string& name, Connection connection) {
  const Table* table = findTable(name);
  if (table && table->connection == connection) return *table;
  throw StoreError(Fault::NoSuchColumn, "数据库中没有“" + base::left(name, 40) + "”这个数据表！");
}

bool contains(const std::vector<const Column*>& columns, const Column* column) {
  return std::ranges::find(columns, column) != columns.end();
}

std::string orderText(const std::vector<std::pair<const Column*, bool>>& order, bool reversed, bool grouped,
                      const Phrases& phrases) {
  std::string result = " order by ";
  for (const auto& [column, descending] : order) {
    result += phrases.key(quoted(column->name), column->type) +
              (descending != reversed ? " desc nulls last, " : " nulls first, ");
  }
  if (grouped) return result.substr(0, result.size() - 2);
  return result + "row_no" + (reversed ? " desc" : "");
}

std::string listOf(const Query& query) {
  std::string result = "row_no";
  for (const Column* column : query.columns) {
    result += ", " + (column->type == Type::Bytes ? "null" : quoted(column->name));
  }
  return result;
}

std::string leastOf(const Query& query, const Phrases& phrases) {
  std::string result = "0";
  for (const Column* column : query.columns)
    result += ", min(" + phrases.byBytes(quoted(column->name), column->type) + ")";
  return result;
}

}  // namespace

std::string quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

Query plan(const dialect::Select& select, Connection connection, const Phrases& phrases) {
  Query query;
  const Table& table = tableOf(select.table, connection);
  query.table = &table;
  for (const std::string& name : select.columns) query.columns.push_back(&columnOf(table, name));
  if (select.columns.empty()) {
    for (const Column& column : table.columns) query.columns.push_back(&column);
  }

  std::vector<const Column*> group;
  for (const std::string& name : select.group) group.push_back(&columnOf(table, name));
  query.grouped = !group.empty();
  std::vector<std::pair<const Column*, bool>> order;
  for (const dialect::Order& by : select.order) order.emplace_back(&columnOf(table, by.column), by.descending);
  if (query.grouped) {
    const bool fits = std::ranges::all_of(query.columns, [&](auto* column) { return contains(group, column); }) &&
                      std::ranges::all_of(order, [&](auto& by) { return contains(group, by.first); });
    if (!fits) throw StoreError(Fault::Statement, "分组的语句只能取出和排列分组的各栏！");
    for (const Column* column : group) order.emplace_back(column, false);
  }

  if (select.where) query.where = " where " + condition(*select.where, table, phrases, query.values);
  const std::string source = " from " + quoted(table.name) + query.where;
  std::string grouping;
  for (const Column* column : group) {
    grouping += (grouping.empty() ? " group by " : ", ") + phrases.key(quoted(column->name), column->type);
  }
  const std::string rows = "select " + (query.grouped ? leastOf(query, phrases) : listOf(query)) + source + grouping;
  query.walk = rows + orderText(order, false, query.grouped, phrases);
  query.last = rows + orderText(order, true, query.grouped, phrases) + " limit 1";
  query.count =
      query.grouped ? "select count(*) from (select 1" + source + grouping + ") as groups" : "select count(*)" + source;
  query.any = "select 1" + source + " limit 1";
  return query;
}

namespace {

std::string placesFrom(std::size_t first, std::size_t count, const Phrases& phrases) {
  std::string places;
  for (std::size_t i = 0; i < count; ++i) places += (i ? ", " : "") + phrases.place(first + i, Stored::Whole);
  return "(" + places + ")";
}

}  // namespace

std::string rowsStatement(const Query& query, const Phrases& phrases, std::size_t count) {
  return "select " + listOf(query) + " from " + quoted(query.table->name) + " where row_no in " +
         placesFrom(0, count, phrases);
}

std::string rangeStatement(const Query& query, const Phrases& phrases) {
  return "select " + listOf(query) + " from " + quoted(query.table->name) + " where row_no between " +
         phrases.place(0, Stored::Whole) + " and " + phrases.place(1, Stored::Whole) + " order by row_no";
}

std::string bytesStatement(const Query& query, const Column& column, const Phrases& phrases) {
  return "select " + quoted(column.name) + " from " + quoted(query.table->name) +
         " where row_no = " + phrases.place(0, Stored::Whole);
}

std::string insertStatement(const Table& table, const std::vector<const Column*>& columns, const Phrases& phrases,
                            std::size_t rows) {
  if (columns.empty()) return "insert into " + quoted(table.name) + " default values";
  std::string names, places;
  for (const Column* column : columns) names += (names.empty() ? "" : ", ") + quoted(column->name);
  for (std::size_t place = 0; place < rows * columns.size(); ++place) {
    const std::size_t i = place % columns.size();
    places += (i > 0 ? ", " : place > 0 ? "), (" : "") + phrases.place(place, storedAs(columns[i]->type));
  }
  return "insert into " + quoted(table.name) + " (" + names + ") values (" + places + ")";
}

std::string updateStatement(const Table& table, const std::vector<const Column*>& columns, const Phrases& phrases) {
  std::string sets;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    sets += (i ? ", " : "") + quoted(columns[i]->name) + " = " + phrases.place(i, storedAs(columns[i]->type));
  }
  return "update " + quoted(table.name) + " set " + sets +
         " where row_no = " + phrases.place(columns.size(), Stored::Whole);
}

std::string removeStatement(const Table& table, const Phrases& phrases) {
  return "delete from " + quoted(table.name) + " where row_no = " + phrases.place(0, Stored::Whole);
}

std::string updateAllStatement(const Query& query, const Column& column, const Phrases& phrases) {
  return "update " + quoted(query.table->name) + " set " + quoted(column.name) + " = " +
         phrases.place(query.values.size(), storedAs(column.type)) + query.where;
}

std::string updateRowsStatement(const Query& query, const Column& column, const Phrases& phrases, std::size_t count) {
  return "update " + quoted(query.table->name) + " set " + quoted(column.name) + " = " +
         phrases.place(0, storedAs(column.type)) + " where row_no in " + placesFrom(1, count, phrases);
}

std::string removeAllStatement(const Query& query) { return "delete from " + quoted(query.table->name) + query.where; }

}  // namespace store
