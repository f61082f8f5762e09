// A statement checked against the catalogue and written for an engine.
#pragma once

#include <string>
#include <vector>

#include "store/catalogue.h"
#include "store/dialect.h"
#include "store/engine.h"

namespace store {

struct Query {
  const Table* table = nullptr;
  std::vector<const Column*> columns;  // of the set, in order
  bool grouped = false;
  std::vector<Cell> values;  // bound in this order, in each of the statements
  // A walk's first column is row_no, a grouped walk's is 0; the set's columns come behind it. Pictures and the like are
  // left out of walks, as Null: who asks for one reads it by itself.
  std::string walk, last, count, any;
  std::string where;  // the condition alone, with its word; empty: all rows
};

// Raises Fault::NoSuchColumn for a name that the catalogue does not know, Fault::Statement for what does not fit
// together.
Query plan(const dialect::Select& select, Connection connection, const Phrases& phrases);

// The statements behind the writes and single reads of a set; values in the order of the columns, row_no last.
std::string rowsStatement(const Query& query, const Phrases& phrases, std::size_t count);  // of so many row_nos
std::string rangeStatement(const Query& query, const Phrases& phrases);                    // from one row_no to another
std::string bytesStatement(const Query& query, const Column& column, const Phrases& phrases);
std::string insertStatement(const Table& table, const std::vector<const Column*>& columns, const Phrases& phrases,
                            std::size_t rows = 1);
std::string updateStatement(const Table& table, const std::vector<const Column*>& columns, const Phrases& phrases);
std::string removeStatement(const Table& table, const Phrases& phrases);

// The same for every row of the set; the query's values come first, then the new one.
std::string updateAllStatement(const Query& query, const Column& column, const Phrases& phrases);
// Of so many row_nos, which come behind the new value.
std::string updateRowsStatement(const Query& query, const Column& column, const Phrases& phrases, std::size_t count);
std::string removeAllStatement(const Query& query);

std::string quoted(std::string_view name);

}  // namespace store
