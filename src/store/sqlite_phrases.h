// How SQLite says what engines say differently, and the functions that its connections need for it.
#pragma once

#include "store/engine.h"

struct sqlite3;

namespace store {

const Phrases& sqlitePhrases();
void addSqliteFunctions(sqlite3* connection);  // the shown forms of amounts and dates, dates in texts

}  // namespace store
