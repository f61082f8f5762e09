// Several computers at one store, and computers that die while they write.
#include <gmock/gmock.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <map>
#include <random>
#include <thread>

#include "store/configurations.h"
#include "store/database.h"
#include "store/files.h"
#include "store/postgres_engine.h"
#include "store/receipts.h"
#include "store/sqlite_engine.h"
#include "support/test_server.h"

namespace store {
namespace {

using namespace std::chrono_literals;

// A computer of its own: writes until it is killed or its time is over, and reports each receipt through a pipe.
class Computer {
 public:
  Computer(const std::filesystem::path& folder, std::chrono::milliseconds time, unsigned seed) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    process_ = fork();
    if (process_ == 0) run(folder, time, seed, ends[1]);
    ::close(ends[1]);
    reports_ = ends[0];
  }
  ~Computer() { ::close(reports_); }
  Computer(const Computer&) = delete;
  Computer& operator=(const Computer&) = delete;

  void awaitReport() {
    pollfd until{reports_, POLLIN, 0};
    ::poll(&until, 1, 10000);
  }
  void die() { kill(process_, SIGKILL); }
  std::vector<Receipt> reports() {  // waits for its end
    std::vector<Receipt> result;
    Receipt receipt{};
    while (read(reports_, &receipt, sizeof receipt) == sizeof receipt) result.push_back(receipt);
    int status = 0;
    waitpid(process_, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return result;
  }

 private:
  [[noreturn]] static void run(const std::filesystem::path& folder, std::chrono::milliseconds time, unsigned seed,
                               int to) {
    try {
      Store store(folder);
      std::minstd_rand random(seed);
      const auto end = std::chrono::steady_clock::now() + time;
      while (std::chrono::steady_clock::now() < end) {
        const Receipt receipt = save(store, 1 + static_cast<int>(random() % 10));
        if (write(to, &receipt, sizeof receipt) != sizeof receipt) _exit(3);
      }
    } catch (const std::exception&) {
      _exit(4);
    }
    _exit(0);
  }

  pid_t process_ = 0;
  int reports_ = 0;
};

class Computers : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (onServer) {
      if (!support::serverRuns())
        GTEST_SKIP() << "not run: no server; start the tests through tools/postgres-for-tests";
      server_ = std::make_unique<support::ServerDatabase>();
      server_->nameIn(folder.path());
    }
    Store(folder.path()).database(Connection::Main);
  }
  // What another computer has open, without a store around it.
  std::unique_ptr<Engine> bare(std::chrono::milliseconds patience = 10s, std::function<void(bool)> onWait = {}) {
    if (onServer) return openPostgres({server_->server(), "office", patience}, std::move(onWait));
    return openSqlite({folder.file(Connection::Main), std::string(mainPassword), false, patience}, std::move(onWait));
  }
  const bool onServer = GetParam();
  const Folder folder;

 private:
  std::unique_ptr<support::ServerDatabase> server_;
};
INSTANTIATE_TEST_SUITE_P(Store, Computers, testing::Bool(),
                         [](const auto& of) { return std::string(of.param ? "Server" : "File"); });

TEST_P(Computers, WhatWasReportedSurvivesAnyDeath) {
  std::minstd_rand random(11);
  std::map<long long, int> reported;
  const unsigned rounds = howMany("STORE_KILLS", 120);
  for (unsigned round = 0; round < rounds; ++round) {
    Computer computer(folder.path(), 10s, round);
    if (round % 10) computer.awaitReport();  // the others may die while they open the store
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 30000));
    computer.die();
    for (const Receipt& receipt : computer.reports()) reported[receipt.number] = receipt.lines;
    if (round % 20 == 19 || round + 1 == rounds) {
      const auto found = receipts(folder.path());
      for (const auto& [number, lines] : reported) {
        const auto receipt = found.find(number);
        ASSERT_TRUE(receipt != found.end() && receipt->second == lines) << number << " was reported as saved";
      }
      EXPECT_EQ(onServer ? "ok" : integrity(folder), "ok");
    }
  }
  EXPECT_GT(reported.size(), rounds) << "the deaths should come in the middle of writing";
}

TEST_P(Computers, TwoGreedyWritersBothGetOn) {
  Computer first(folder.path(), 4s, 1), second(folder.path(), 4s, 2);
  const auto a = first.reports(), b = second.reports();
  std::map<long long, int> reported;
  for (const auto* reports : {&a, &b}) {
    for (const Receipt& receipt : *reports) reported[receipt.number] = receipt.lines;
  }
  EXPECT_EQ(reported.size(), a.size() + b.size()) << "no number was given twice";
  EXPECT_EQ(receipts(folder.path()), reported);
  RecordProperty("first", static_cast<int>(a.size()));
  RecordProperty("second", static_cast<int>(b.size()));
  EXPECT_GT(std::min(a.size(), b.size()) * 4, std::max(a.size(), b.size()));
}

TEST_P(Computers, AWriterIsWaitedForByWritersOnly) {
  std::vector<bool> told;
  const auto changes = [&](bool waiting) {
    if (told.empty() || told.back() != waiting) told.push_back(waiting);
  };
  const auto other = bare();
  other->begin();
  const auto impatient = bare(300ms, changes);
  EXPECT_EQ(faultOf([&] { impatient->begin(); }), Fault::Busy);
  EXPECT_THAT(told, testing::ElementsAre(true, false));
  told.clear();
  Store store(folder.path());
  store.onWait = changes;
  RecordSet set(store, "select * from jfjl");
  EXPECT_EQ(set.count(), 0);
  EXPECT_THAT(told, testing::IsEmpty());
  std::thread finishing([&] {
    std::this_thread::sleep_for(500ms);
    other->commit();
  });
  set.addNew();
  set.update();
  finishing.join();
  EXPECT_THAT(told, testing::ElementsAre(true, false));
  EXPECT_EQ(set.count(), 1);
  impatient->begin();
  impatient->rollback();
}

TEST_P(Computers, AnOlderCatalogueIsCompletedAndANewerOneRefused) {
  {
    const auto older = bare();
    for (const char* step : {"drop table qfjl", "alter table xs drop column eml", "drop table unit_tokens"})
      older->execute(step);
    older->setVersion(0);
  }
  {
    Store store(folder.path());
    EXPECT_EQ(rows(store, "select * from qfjl") + rows(store, "select eml from xs"), 0);
    RecordSet set(store, "select * from jfjl");
    set.addNew();
    set.update();
    EXPECT_EQ(set.count(), 1);
    EXPECT_EQ(store.database(Connection::Main).engine().version(), catalogueVersion);
  }
  bare()->setVersion(catalogueVersion + 1);
  Store store(folder.path());
  try {
    rows(store, "select * from jfjl");
    ADD_FAILURE() << "a catalogue of tomorrow was taken";
  } catch (const StoreError& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("升级"));
  }
}

}  // namespace
}  // namespace store
