#include "store/bulk_load.h"

#include "store/database.h"
#include "store/schema.h"

namespace store {

BulkLoad::BulkLoad(Store& store, std::string_view table, Connection connection)
    : store_(store), connection_(connection), table_(*findTable(table)) {
  dropIndexes(store_.database(connection_).engine(), table_);
}

void BulkLoad::finish() { createIndexes(store_.database(connection_).engine(), table_); }

}  // namespace store
