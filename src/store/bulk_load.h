// Writes very many rows into one table: the table's indexes are set aside meanwhile and built at the end, which is many
// times quicker than keeping them up row by row. For schools that are made or brought in as a whole; needs a unit of
// work around it, so that nobody ever meets the table without its indexes.
#pragma once

#include <string_view>

#include "store/store.h"

namespace store {

class BulkLoad {
 public:
  BulkLoad(Store& store, std::string_view table, Connection connection = Connection::Main);
  void finish();  // an index that is never built is a unit that is taken back

 private:
  Store& store_;
  Connection connection_;
  const Table& table_;
};

}  // namespace store
