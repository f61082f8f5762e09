// A test's made-up text as a statement, as if a source had held it.
#pragma once

#include "store/sql.h"

namespace store {

struct MadeUpSql {
  static Sql of(std::string_view text) {
    Sql sql;
    sql.append(text);
    return sql;
  }
};

}  // namespace store
