// The embedded engine: SQLite with encrypted files. Only who opens a store, and the benchmarks, name it.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "store/engine.h"

struct sqlite3;

namespace store {

struct SqliteFile {
  std::filesystem::path path;                 // empty: in memory
  std::string password;                       // empty: not encrypted
  bool create = false;                        // else a missing file is Fault::Missing
  std::chrono::milliseconds patience{10000};  // how long to wait for another computer
};

// onWait: see Store::onWait.
std::unique_ptr<Engine> openSqlite(const SqliteFile& file, std::function<void(bool waiting)> onWait = {});

sqlite3* handleOf(Engine& engine);  // the bare connection of an engine that openSqlite has made

}  // namespace store
