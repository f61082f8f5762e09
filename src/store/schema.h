// The catalogue as tables of a database.
#pragma once

#include "store/catalogue.h"
#include "store/engine.h"

namespace store {

// Creates what is missing and brings an older database up, one version at a time; all or nothing. A database of a newer
// program is refused: Fault::Other.
void bringUp(Engine& engine, Connection connection);

// Those that the catalogue names for the table.
void createIndexes(Engine& engine, const Table& table);
void dropIndexes(Engine& engine, const Table& table);

}  // namespace store
