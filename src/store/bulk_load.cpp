#include "store/bulk_load.h"

#include "store/database.h"
#include "store/schema.h"

namespace store {

BulkLoad::BulkLoad(Store& store, std::string_view table, Connection connection)
    : store_(store), connection_(connection), table_(*findTable(table)) {
  dropIndexes(store_.database(connection_).engine(), table_);
}

BulkLoad::~BulkLoad() {
  try {
    finish();
  } catch (const StoreError&) {  // the error that is on its way already told the person that it went wrong
  }
}

void BulkLoad::finish() {
  if (!open_) return;
  open_ = false;
  createIndexes(store_.database(connection_).engine(), table_);
}

}  // namespace store
