#include "store/schema.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "store/error.h"
#include "store/query.h"
#include "store/typing.h"

namespace store {
namespace {

// What a version asks for beyond the tables, columns and indexes that the catalogue names: those are created anyway.
struct Step {
  int version;
  void (*run)(Engine& engine, Connection connection);  // none: what Engine::install() makes
};

// The settings that a new office starts with.
void addSettings(Engine& engine, Connection connection) {
  if (connection != Connection::Config) return;
  const Table& table = *findTable("morvanedjpzb");
  const std::vector<std::pair<std::string_view, Value>> settings{{"fn", "kqd"},
                                                                 {"tupan", 1},
                                                                 {"dysz", 1},
                                                                 {"sfctsz", 0},
                                                                 {"sfxmmcsz", 1},
                                                                 {"sfxmmc", ""},
                                                                 {"qfmr", true},
                                                                 {"jfjljz", true},
                                                                 {"dybzok", true},
                                                                 {"fpys", 1},
                                                                 {"todamc1", "江西省学校收费专用收据"},
                                                                 {"zdqh", true},
                                                                 {"qfjz", ""},
                                                                 {"qfts", 7},
                                                                 {"qfcejz", false},
                                                                 {"bjsf1", true},
                                                                 {"xssf", 0},
                                                                 {"tspz", "1"}};
  std::vector<const Column*> columns;
  for (const auto& [name, value] : settings) columns.push_back(table.find(name));
  const auto insert = engine.prepare(insertStatement(table, columns, engine.phrases()));
  for (std::size_t i = 0; i < columns.size(); ++i) insert->bind(i, cell(typed(settings[i].second, *columns[i])));
  insert->step();
}

// 2: the engine's tokens. 3: whether a session lives, settings of the whole office.
constexpr std::array<Step, 3> steps{{{1, addSettings}, {2, nullptr}, {3, nullptr}}};
static_assert(steps.back().version == catalogueVersion, "each version of the catalogue has its step");

std::string definition(const Column& column, const Phrases& phrases) {
  return quoted(column.name) + " " + phrases.columnType(column.type);
}

void createTable(Engine& engine, const Table& table) {
  std::string columns = "row_no " + engine.phrases().rowNumber();
  for (const Column& column : table.columns) columns += ", " + definition(column, engine.phrases());
  engine.execute("create table " + quoted(table.name) + " (" + columns + ")");
}

void complete(Engine& engine, const Table& table) {
  const std::vector<std::string> present = engine.columnsOf(table.name);
  if (present.empty()) createTable(engine, table);
  for (const Column& column : table.columns) {
    const auto same = [&](const std::string& name) { return base::sameText(name, column.name); };
    if (present.empty() || std::ranges::any_of(present, same)) continue;
    engine.execute("alter table " + quoted(table.name) + " add column " + definition(column, engine.phrases()));
  }
  createIndexes(engine, table);
}

std::string indexName(const Table& table, std::string_view index) {
  std::string name = std::string(table.name) + "_" + std::string(index);
  std::ranges::replace(name, ',', '_');
  return store::quoted(name);  // not the standard library's
}

}  // namespace

void createIndexes(Engine& engine, const Table& table) {
  for (std::string_view index : table.indexes) {
    std::vector<std::string> keys;
    for (std::size_t from = 0; from <= index.size();) {
      const std::size_t end = std::min(index.find(',', from), index.size());
      const Column& column = *table.find(index.substr(from, end - from));
      keys.push_back(engine.phrases().key(quoted(column.name), column.type));
      from = end + 1;
    }
    engine.execute("create index if not exists " + indexName(table, index) + " on " + quoted(table.name) + " (" +
                   engine.phrases().indexed(keys) + ")");
  }
}

void dropIndexes(Engine& engine, const Table& table) {
  for (std::string_view index : table.indexes) engine.execute("drop index if exists " + indexName(table, index));
}

void bringUp(Engine& engine, Connection connection) {
  const auto newer = [] {
    return StoreError(Fault::Other, "数据库是由较新版本的程序建立的，本程序不能使用。请先升级本程序！");
  };
  if (engine.version() == catalogueVersion) return;
  if (engine.version() > catalogueVersion) throw newer();
  engine.begin();
  try {
    const int from = engine.version();  // another computer may have been faster
    if (from > catalogueVersion) throw newer();
    if (from < catalogueVersion) {
      engine.install();
      for (const Table& table : tables()) {
        if (table.connection == connection) complete(engine, table);
      }
      for (const Step& step : steps) {
        if (step.version > from && step.run) step.run(engine, connection);
      }
      engine.setVersion(catalogueVersion);
    }
    engine.commit();
  } catch (...) {
    engine.rollback();
    throw;
  }
}

}  // namespace store
