// The statement language of the record operations: select from one table, as a small tree.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "store/sql.h"

namespace store::dialect {

struct Expr {
  enum class Kind {
    Column,
    Text,
    Number,
    Date,
    YesNo,  // text holds the name or the literal
    Left,
    Month,
    Year,
    Negate,
    Add,
    Subtract,
    Multiply,
    Divide,  // values
    Equal,
    NotEqual,
    Less,
    Greater,
    LessEqual,
    GreaterEqual,
    Like,  // conditions over values
    IsNull,
    Not,
    And,
    Or,  // And and Or take any number of parts
  };
  Kind kind;
  std::string text;
  std::vector<Expr> parts;
};

struct Order {
  std::string column;
  bool descending = false;
};

struct Select {
  std::vector<std::string> columns;  // none: all of the table's
  std::string table;
  std::optional<Expr> where;
  std::vector<std::string> group;
  std::vector<Order> order;
};

// Raises Fault::Statement for what is not in the language and for a value that would end its place.
Select parse(const Sql& sql);

}  // namespace store::dialect
