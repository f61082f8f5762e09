#include "store/store.h"

#include <array>

#include "store/database.h"
#include "store/files.h"
#include "store/postgres_engine.h"
#include "store/schema.h"
#include "store/sqlite_engine.h"

namespace store {

struct Store::State {
  struct Side {
    std::string text;  // of the connection
    std::shared_ptr<Database> database;
  };

  std::filesystem::path folder;
  bool inMemory = false;
  std::array<Side, 2> sides;

  Side& side(Connection which) { return sides[static_cast<std::size_t>(which)]; }
};

namespace {

std::unique_ptr<Engine> upToDate(std::unique_ptr<Engine> engine, Connection which) {
  bringUp(*engine, which);
  return engine;
}

std::string schemaOf(Connection which) { return which == Connection::Main ? "office" : "office_config"; }

}  // namespace

Store::Store() : state_(std::make_unique<State>()) {
  state_->inMemory = true;
  for (Connection which : {Connection::Main, Connection::Config}) {
    state_->side(which).database = std::make_shared<Database>([which] { return upToDate(openSqlite({}), which); });
  }
}

Store::Store(std::filesystem::path programFolder) : state_(std::make_unique<State>()) {
  state_->folder = std::move(programFolder);
  for (Connection which : {Connection::Main, Connection::Config}) {
    state_->side(which).database = std::make_shared<Database>(Database::Opener());
    connect(which, connectionText(state_->folder, livePath(which), password(which)));
  }
}

Store::~Store() = default;

namespace {
// The start screen and the login name the same files by different paths; what is open under one name serves the other.
bool sameFile(const std::string& one, const std::string& other) {
  try {
    return locate(one) == locate(other);
  } catch (const StoreError&) {
    return false;  // a text that names no file is told when the database is opened
  }
}
}  // namespace

void Store::connect(Connection which, const std::string& text) {
  State::Side& side = state_->side(which);
  if (state_->inMemory || side.text == text) return;
  const bool same = sameFile(side.text, text);
  side.text = text;
  if (same) return;
  side.database->replace([this, which, text] {
    const auto told = [this](bool waiting) {
      if (onWait) onWait(waiting);
    };
    if (const auto server = serverOf(state_->folder)) {
      return upToDate(openPostgres({*server, schemaOf(which)}, told), which);
    }
    const Location location = locate(text);
    createWhenNew(state_->folder);
    return upToDate(openSqlite({location.path, location.password}, told), which);
  });
}

std::shared_ptr<Database> Store::shared(Connection which) {
  database(which);
  return state_->side(which).database;
}

Database& Store::database(Connection which) {
  Database& database = *state_->side(which).database;
  database.engine();
  return database;
}

void Store::close() {
  for (State::Side& side : state_->sides) {
    if (state_->inMemory) {
      side.database->settle();
    } else {
      side.database->close();
    }
  }
}

long long Store::saved() const {
  long long all = 0;
  for (const State::Side& side : state_->sides) all += side.database->saved();
  return all;
}

void Store::settle() {
  for (State::Side& side : state_->sides) side.database->settle();
}

Unit::Unit(Store& store, Connection which) : store_(store), which_(which) { store.database(which).beginUnit(); }

Unit::~Unit() {
  if (open_) store_.database(which_).abandonUnit();
}

void Unit::finish() {
  if (!open_) return;
  open_ = false;
  store_.database(which_).finishUnit();
}

bool Unit::openIn(const Store& store) {
  for (const Store::State::Side& side : store.state_->sides) {
    if (side.database->inUnit()) return true;
  }
  return false;
}

}  // namespace store
