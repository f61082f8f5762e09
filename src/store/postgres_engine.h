// The larger engine: a schema on a PostgreSQL server. Only who opens a store names it.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "store/engine.h"
#include "store/server.h"

namespace store {

struct PostgresSchema {
  Server server;
  std::string schema;
  std::chrono::milliseconds patience{10000};  // how long to wait for another computer
};

// The schema is made when the server has none yet. onWait: see Store::onWait.
std::unique_ptr<Engine> openPostgres(const PostgresSchema& place, std::function<void(bool waiting)> onWait = {});

}  // namespace store
