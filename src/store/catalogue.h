// The catalogue: every table of the system as data. It creates the schema on every engine, types values both ways and
// says "no such column" before an engine does.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "store/value.h"

namespace store {

enum class Connection { Main, Config };

struct Column {
  std::string_view name;
  Type type;
};

struct Table {
  std::string_view name;
  Connection connection;
  std::vector<Column> columns;            // in order; the hidden row_no comes before them
  std::vector<std::string_view> indexes;  // "xh", "sftj,skr": the columns of an index each
  bool remade = false;                    // made anew at each use: nobody misses what it held

  const Column* find(std::string_view column) const;  // without regard to case; null when there is none
};

constexpr int catalogueVersion = 3;
std::span<const Table> tables();
const Table* findTable(std::string_view name);

}  // namespace store
