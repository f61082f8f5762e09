// What can happen between a desk and the server, and what the operator is told.
#include <gmock/gmock.h>
#include <signal.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <random>
#include <thread>

#include "store/breaking_wire.h"
#include "store/configurations.h"
#include "store/database.h"
#include "store/ini.h"
#include "store/postgres_engine.h"
#include "store/query.h"

namespace store {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

class ServerStore : public testing::Test {
 protected:
  void SetUp() override {
    if (!support::serverRuns()) GTEST_SKIP() << "not run: no server; start the tests through tools/postgres-for-tests";
    database.emplace();
    database->nameIn(folder.path());
  }
  void fill(Store& store, int count) {
    RecordSet set(store, "select * from jfjl");
    Unit unit(store);
    for (int i = 1; i <= count; ++i) addRow(set, std::to_string(i));
    unit.finish();
  }
  static void addRow(RecordSet& set, const std::string& lsh) {
    set.addNew();
    set.set("lsh", lsh);
    set.update();
  }
  void breakConnections() {
    database->ask(
        "select count(pg_terminate_backend(pid)) from pg_stat_activity "
        "where datname = current_database() and pid <> pg_backend_pid()");
    std::this_thread::sleep_for(50ms);
  }
  std::string countOnServer() { return database->ask("select count(*) from office.jfjl"); }

  Folder folder;
  std::optional<support::ServerDatabase> database;
};

std::string wordsOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const StoreError& error) {
    return error.what();
  }
  ADD_FAILURE() << "nothing was refused";
  return "";
}

TEST_F(ServerStore, ComputersThatStartAtOnceMakeOneSchema) {
  for (int round = 0; round < 3; ++round) {
    database->ask("set client_min_messages = warning; drop schema office, office_config cascade");
    std::atomic<int> done = 0;
    std::vector<std::thread> desks;
    for (int desk = 0; desk < 4; ++desk) {
      desks.emplace_back([&] {
        Store store(folder.path());
        done += static_cast<int>(rows(store, "select * from jfjl") == 0 &&
                                 RecordSet(store, "select * from morvanedjpzb", Connection::Config).count() == 1);
      });
    }
    for (std::thread& desk : desks) desk.join();
    EXPECT_EQ(done, 4);
  }
}

TEST_F(ServerStore, ABreakBetweenTwoActionsIsToldOnce) {
  Store store(folder.path());
  fill(store, 3);
  RecordSet set(store, "select * from jfjl");
  EXPECT_EQ(set.get("lsh").text(), "1");
  store.settle();
  breakConnections();
  EXPECT_THAT(wordsOf([&] { set.next(); }), HasSubstr("连接断开"));
  set.refresh();
  EXPECT_EQ(set.count(), 3);
  breakConnections();
  EXPECT_THAT(wordsOf([&] { addRow(set, "4"); }), HasSubstr("连接断开"));
  addRow(set, "4");
  EXPECT_EQ(set.count(), 4);
}

TEST_F(ServerStore, ABreakInsideAUnitLeavesNothing) {
  Store store(folder.path());
  RecordSet set(store, "select * from jfjl");
  const std::vector<std::function<void()>> actions{[&] { addRow(set, "2"); }, [&] { set.count(); }};
  for (const auto& action : actions) {
    try {
      Unit unit(store);
      addRow(set, "1");
      breakConnections();
      EXPECT_EQ(faultOf(action), Fault::Disconnected);
      EXPECT_EQ(faultOf([&] { addRow(set, "3"); }), Fault::Other) << "nothing more enters a lost unit";
      unit.finish();
      ADD_FAILURE() << "a lost unit was reported as saved";
    } catch (const StoreError& error) {
      EXPECT_EQ(error.fault, Fault::Other);
    }
    EXPECT_EQ(store.saved(), 0);
    EXPECT_FALSE(Unit::openIn(store));
    EXPECT_EQ(countOnServer(), "0");
  }
  addRow(set, "4");
  EXPECT_EQ(countOnServer(), "1");
}

TEST_F(ServerStore, AWalkThatBreaksIsNotTakenForAWholeOne) {
  Store store(folder.path());
  fill(store, 500);
  RecordSet walk(store, "select * from jfjl");
  walk.next();
  breakConnections();
  store.settle();  // the rows that remain can be noted no more
  EXPECT_THAT(wordsOf([&] { walk.next(); }), HasSubstr("中断"));
  walk.first();
  EXPECT_EQ(walk.get("lsh").text(), "1");
}

// After a crash the server gives the numbers of transactions that it lost to others.
TEST_F(ServerStore, AUnitThatACrashTookIsNotTakenForAnotherDesks) {
  Store store(folder.path()), other(folder.path());
  RecordSet set(store, "select * from jfjl"), others(other, "select * from jfjl");
  addRow(others, "0");
  for (int round = 1; round <= 3; ++round) {
    const long long saved = store.saved();
    EXPECT_EQ(faultOf([&] {
                Unit unit(store);
                addRow(set, "lost");
                const std::string victim = database->ask(
                    "select pid from pg_stat_activity where datname = current_database() and state = 'idle' limit 1");
                ASSERT_EQ(::kill(std::stoi(victim), SIGKILL), 0);
                for (bool again = true; again;) {
                  try {
                    addRow(others, std::to_string(round));
                    again = false;
                  } catch (const StoreError&) {
                    std::this_thread::sleep_for(50ms);
                  }
                }
                unit.finish();
              }),
              Fault::Disconnected);
    EXPECT_EQ(store.saved(), saved);
  }
  EXPECT_EQ(database->ask("select string_agg(lsh, ',' order by row_no) from office.jfjl"), "0,1,2,3");
}

class ServerWire : public ServerStore {
 protected:
  void SetUp() override {
    ServerStore::SetUp();
    if (IsSkipped()) return;
    Server through = database->server();
    wire.emplace(folder.path(), through.host);
    through.host = folder.path().string();
    through.timeout = 1;
    std::ofstream(serverFile(folder.path())) << support::serverFileText(through);
  }
  std::optional<BreakingWire> wire;
};

TEST_F(ServerWire, TheServerIsAskedWhatBecameOfASave) {
  Store store(folder.path());
  RecordSet set(store, "select * from jfjl");
  const auto save = [&] {
    Unit unit(store);
    addRow(set, "1");
    unit.finish();
  };
  wire->breakAt("commit", BreakingWire::Break::BeforeItArrives);
  EXPECT_EQ(faultOf(save), Fault::Disconnected);
  EXPECT_EQ(store.saved(), 0);
  EXPECT_EQ(countOnServer(), "0");
  wire->breakAt("commit", BreakingWire::Break::BehindItsAnswer);
  save();
  EXPECT_EQ(countOnServer(), "1") << "it was saved, and nobody has to hear of the break";
  EXPECT_EQ(store.saved(), 1);
  wire->breakAt("commit", BreakingWire::Break::BehindItsAnswer);
  addRow(set, "2");
  EXPECT_EQ(set.get("lsh").text(), "2");
  EXPECT_EQ(countOnServer(), "2");
}

TEST_F(ServerWire, AServerThatIsQuietIsGivenUp) {
  Store store(folder.path());
  std::vector<bool> told;
  store.onWait = [&](bool waiting) { told.push_back(waiting); };
  RecordSet set(store, "select * from jfjl");
  EXPECT_EQ(set.count(), 0);
  const auto start = std::chrono::steady_clock::now();
  wire->breakAt("count", BreakingWire::Break::QuietFromHere);
  EXPECT_EQ(faultOf([&] { rows(store, "select * from jfjl where xm='a'"); }), Fault::Disconnected);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
  ASSERT_GT(told.size(), 10u) << "the notice is painted while it lasts";
  EXPECT_EQ(std::ranges::count(told, false), 1);
  EXPECT_FALSE(told.back());
  wire->breakAt("insert into unit_tokens", BreakingWire::Break::QuietFromHere);
  addRow(set, "1");
  EXPECT_EQ(store.saved(), 1) << "the commit had arrived, only its answer had not";
  EXPECT_EQ(countOnServer(), "1");
}

TEST_F(ServerWire, WhatIsNotKnownYetIsToldWithTheNextConnection) {
  for (const auto where : {BreakingWire::Break::BeforeItArrives, BreakingWire::Break::BehindItsAnswer}) {
    const bool saved = where == BreakingWire::Break::BehindItsAnswer;
    const auto engine =
        openPostgres({{folder.path().string(), "", database->server().database, "tests", {}}, "office", 300ms});
    engine->begin();
    engine->prepare("insert into jfjl (lsh) values ('1')")->step();
    wire->breakAt("commit", where, false);
    EXPECT_EQ(faultOf([&] { engine->commit(); }), Fault::Unsure);
    EXPECT_EQ(faultOf([&] { engine->begin(); }), Fault::Disconnected);
    wire->comeBack();
    EXPECT_THAT(wordsOf([&] { engine->begin(); }), HasSubstr(saved ? "已经全部保存" : "全部没有保存"));
    EXPECT_EQ(countOnServer(), saved ? "1" : "0");
    engine->begin();
    engine->commit();
  }
}

TEST_F(ServerStore, WhatTheServerRefusesTakesNothingElseWithIt) {
  Store store(folder.path());
  std::string noise;  // too long for an index, and not to be packed
  std::minstd_rand random(3);
  while (noise.size() < 9000) noise += static_cast<char>('0' + random() % 75);
  Unit unit(store);
  RecordSet set(store, "select * from jfjl");
  addRow(set, "1");
  EXPECT_EQ(faultOf([&] { addRow(set, noise); }), Fault::Statement);
  EXPECT_EQ(faultOf([&] { RecordSet(store, "select * from jfjl where 1e308*10>1").empty(); }), Fault::Statement);
  addRow(set, "2");
  unit.finish();
  EXPECT_EQ(database->ask("select string_agg(lsh, ',' order by row_no) from office.jfjl"), "1,2");
}

TEST_F(ServerStore, WalksInsideWalksWhileRowsAreWritten) {
  Store store(folder.path());
  fill(store, 400);
  const auto walk = [&] {
    int outer = 0, inner = 0;
    RecordSet all(store, "select * from jfjl order by lsh");
    RecordSet log(store, "select * from czjl");
    forEach(all, [&](RecordSet& at) {
      if (++outer % 100 == 0) {
        RecordSet again(store, "select lsh from jfjl");
        forEach(again, [&](RecordSet&) { ++inner; });
      }
      if (outer % 50 == 0) {
        at.set("xm", outer);
        at.update();
        EXPECT_EQ(at.get("xm").text(), std::to_string(outer));
        log.addNew();
        log.set("yhxm", "a");
        log.update();
      }
    });
    EXPECT_EQ(outer, 400);
    EXPECT_EQ(inner, 1600);
  };
  walk();
  Unit unit(store);
  walk();
  unit.finish();
  EXPECT_EQ(rows(store, "select * from czjl"), 16);
  store.settle();
  EXPECT_EQ(database->ask("select count(*) from pg_stat_activity where datname = current_database() and "
                          "state like 'idle in transaction%'"),
            "0");
}

// A statement with its values in their places, as the server sees it.
std::string inFull(std::string text, const std::vector<Cell>& values) {
  for (std::size_t i = values.size(); i > 0; --i) {
    const std::string place = "$" + std::to_string(i);
    for (std::size_t at = 0; (at = text.find(place, at)) != std::string::npos;) {
      text.replace(at, place.size(), "'" + std::get<std::string>(values[i - 1]) + "'");
    }
  }
  return text;
}

TEST_F(ServerStore, ListsAndLookUpsGoThroughAnIndex) {
  Store store(folder.path());
  fill(store, 3000);
  database->ask("analyze office.jfjl");
  struct Case {
    Sql sql;
    std::string Query::*statement;
    std::string index;
  };
  const Case cases[] = {
      {"select * from jfjl order by lsh", &Query::last, "jfjl_lsh"},
      {"select * from jfjl order by jfrq", &Query::last, "jfjl_jfrq"},
      {"select * from jfjl where lsh='12'", &Query::walk, "jfjl_lsh"},
      {"select * from jfjl where lsh like '199%'", &Query::count, "jfjl_lsh"},
      {"select * from jfjl where jfrq=#2008-9-1#", &Query::count, "jfjl_jfrq"},
      {"select * from jfjl where skr='a' and sftj=''", &Query::count, "jfjl_skr_sftj"},
  };
  for (const Case& each : cases) {
    const Phrases& phrases = store.database(Connection::Main).engine().phrases();
    const Query query = plan(dialect::parse(each.sql), Connection::Main, phrases);
    const std::string plan =
        database->ask("set search_path = office; explain (format json) " + inFull(query.*each.statement, query.values));
    EXPECT_THAT(plan, HasSubstr("\"Index Name\": \"" + each.index + "\"")) << each.sql.text();
  }
}

TEST_F(ServerStore, TheFileBesideTheConfiguration) {
  const auto file = serverFile(folder.path());
  Server wrong = database->server();
  wrong.database = "nothing";
  std::ofstream(file) << support::serverFileText(wrong);
  EXPECT_THAT(wordsOf([&] { rows(*std::make_unique<Store>(folder.path()), "select * from xs"); }),
              HasSubstr("server.ini"));
  std::ofstream(file) << "[server]\nport=1\n";
  EXPECT_THAT(wordsOf([&] { rows(*std::make_unique<Store>(folder.path()), "select * from xs"); }), HasSubstr("host"));
  wrong = database->server();
  wrong.passwordFile = "lost.txt";
  std::ofstream(file) << support::serverFileText(wrong);
  EXPECT_THAT(wordsOf([&] { rows(*std::make_unique<Store>(folder.path()), "select * from xs"); }),
              HasSubstr("lost.txt"));
  std::ofstream(file.parent_path() / "lost.txt") << "secret\n";
  EXPECT_EQ(rows(*std::make_unique<Store>(folder.path()), "select * from xs"), 0);
}

TEST(Ini, ReadsWhatIsThere) {
  const Folder folder;
  const auto file = folder.path() / "a.ini";
  std::ofstream(file) << "\xEF\xBB\xBF[One]\r\n ; key=remark\nKey = a b \r\nempty=\nquoted=\" c \"\nlong="
                      << std::string(300, 'x') << "\n[two]\nkey=second=2\nkey=third\n";
  EXPECT_EQ(GetFromINI("one", "KEY", file), "a b");
  EXPECT_EQ(GetFromINI("two", "key", file), "second=2");
  EXPECT_EQ(GetFromINI("one", "quoted", file), " c ");
  EXPECT_EQ(GetFromINI("one", "long", file), std::string(254, 'x'));
  for (const char* key : {"empty", "missing"}) EXPECT_EQ(GetFromINI("one", key, file), "");
  EXPECT_EQ(GetFromINI("three", "key", file), "");
  EXPECT_EQ(GetFromINI("one", "key", folder.path() / "none.ini"), "");
}

}  // namespace
}  // namespace store
