// What can happen to the files, and what the operator is told.
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <optional>

#include "store/configurations.h"
#include "store/database.h"
#include "store/files.h"
#include "store/sqlite_engine.h"

namespace store {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class Faults : public testing::Test {
 protected:
  Faults() { fill(20); }

  void fill(int count) {
    Store store(folder.path());
    RecordSet set(store, "select * from jfjl");
    Unit unit(store);
    for (int i = 0; i < count; ++i) addRow(set);
    unit.finish();
    EXPECT_EQ(rows(store, "select * from jfjl"), count);
    EXPECT_EQ(RecordSet(store, "select * from morvanedjpzb where fn='kqd'", Connection::Config).count(), 1);
  }
  static void addRow(RecordSet& set) {
    set.addNew();
    set.set("bz", std::string(2000, 'x'));
    set.update();
  }
  StoreError refused(const Sql& sql, Connection which = Connection::Main) {
    try {
      Store store(folder.path());
      RecordSet set(store, sql, which);
      forEach(set, [](RecordSet& at) { at.get(at.fields().back()); });
    } catch (const StoreError& error) {
      EXPECT_THAT(error.what(), HasSubstr("请"));
      return error;
    }
    ADD_FAILURE() << "nothing was refused";
    return {Fault::Other, ""};
  }
  void overwrite(std::uintmax_t from, std::size_t count) {
    std::fstream file(folder.file(Connection::Main), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(from));
    file << std::string(count, '\x5a');
  }

  Folder folder;
};

TEST_F(Faults, WrongPassword) {
  Store store(folder.path());
  store.connect(Connection::Main, connectionText(folder.path(), livePath(Connection::Main), "another"));
  EXPECT_EQ(faultOf([&] { RecordSet(store, "select * from xs"); }), Fault::WrongPassword);
  store.connect(Connection::Main, connectionText(folder.path(), "\\mvdata\\morvanegxgl.mdb", mainPassword));
  EXPECT_EQ(rows(store, "select * from jfjl"), 20) << "the start screen's path leads to the same file";
}

TEST_F(Faults, TheFileIsEncrypted) {
  std::ifstream file(folder.file(Connection::Main), std::ios::binary);
  const std::string all(std::istreambuf_iterator<char>(file), {});
  EXPECT_EQ(all.find("jfjl"), std::string::npos);
  EXPECT_EQ(all.find(std::string(50, 'x')), std::string::npos);
}

TEST_F(Faults, AMissingFileIsNeverReplacedByANewOne) {
  const fs::path main = folder.file(Connection::Main), config = folder.file(Connection::Config);
  fs::rename(main, main.string() + ".away");
  EXPECT_EQ(refused("select * from xs").fault, Fault::Missing);
  fs::rename(config.parent_path(), folder.path() / "away");
  EXPECT_EQ(refused("select * from morvanedjpzb", Connection::Config).fault, Fault::Missing);
  EXPECT_FALSE(fs::exists(main));
  EXPECT_FALSE(fs::exists(config.parent_path()));
}

TEST_F(Faults, AnInterruptedCreationIsCompletedOrRepeated) {
  const fs::path main = folder.file(Connection::Main).parent_path();
  fs::rename(main, main.string() + ".new");
  {
    Store completed(folder.path());
    EXPECT_EQ(rows(completed, "select * from jfjl"), 20);
  }
  const Folder other;
  fs::create_directories(other.path() / "mv_Database.new");
  std::ofstream(other.path() / "mv_Database.new" / "morvanegxgl.mdb") << "half";
  Store repeated(other.path());
  EXPECT_EQ(rows(repeated, "select * from jfjl"), 0);
  EXPECT_FALSE(fs::exists(other.path() / "mv_Database.new"));
}

TEST_F(Faults, DamagedFiles) {
  const fs::path file = folder.file(Connection::Main);
  const auto size = fs::file_size(file);
  fs::copy_file(file, file.string() + ".good");
  overwrite(0, 100);
  EXPECT_EQ(refused("select * from jfjl").fault, Fault::WrongPassword);
  const auto restore = [&] { fs::copy_file(file.string() + ".good", file, fs::copy_options::overwrite_existing); };
  restore();
  overwrite(size / 2, size / 2);
  EXPECT_EQ(refused("select * from jfjl").fault, Fault::Damaged);
  restore();
  fs::resize_file(file, size / 2);
  EXPECT_EQ(refused("select * from jfjl").fault, Fault::Damaged);
  restore();
  fs::resize_file(file, 700);
  EXPECT_EQ(refused("select * from jfjl").fault, Fault::WrongPassword);
  fs::resize_file(file, 0);
  EXPECT_EQ(refused("select * from jfjl").fault, Fault::Damaged) << "never taken for a new one";
}

// The fault that somebody without rights meets in a process of their own.
std::optional<Fault> asNobody(const std::function<void()>& action) {
  constexpr int none = 99, noNobody = 98;
  const pid_t child = fork();
  if (child == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(noNobody);
    try {
      action();
    } catch (const StoreError& error) {
      _exit(static_cast<int>(error.fault));
    }
    _exit(none);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != noNobody);
  return WEXITSTATUS(status) == none ? std::nullopt : std::optional(static_cast<Fault>(WEXITSTATUS(status)));
}

TEST_F(Faults, AFolderWithoutRights) {
  fs::permissions(folder.path(), fs::perms::all & ~(fs::perms::group_write | fs::perms::others_write));
  fs::permissions(folder.file(Connection::Main),
                  fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  const auto read = [this] { EXPECT_EQ(rows(*std::make_unique<Store>(folder.path()), "select * from jfjl"), 20); };
  const auto write = [this] {
    Store store(folder.path());
    RecordSet set(store, "select * from jfjl");
    addRow(set);
  };
  EXPECT_EQ(asNobody(read), std::nullopt);
  EXPECT_EQ(asNobody(write), Fault::ReadOnly);
  const fs::path inside = folder.file(Connection::Main).parent_path();
  fs::permissions(inside, fs::perms::none);
  EXPECT_EQ(asNobody(read), Fault::ReadOnly);
  fs::permissions(inside, fs::perms::owner_all);
}

TEST_F(Faults, AReadUnderWayHoldsNoLockOnceTheEventIsHandled) {
  Store store(folder.path());
  RecordSet walk(store, "select * from jfjl");
  EXPECT_FALSE(walk.atEnd());
  const auto other =
      openSqlite({folder.file(Connection::Main), std::string(mainPassword), false, std::chrono::milliseconds(100)}, {});
  const auto write = [&] { other->execute("update jfjl set xm='changed'"); };
  EXPECT_EQ(faultOf(write), Fault::Busy);
  store.settle();
  write();
  EXPECT_EQ(walk.get("xm").text(), "changed");
  walk.next();
  EXPECT_FALSE(walk.atEnd());
}

TEST_F(Faults, TheDiskIsFullInTheMiddleOfASave) {
  Store store(folder.path());
  RecordSet set(store, "select * from jfjl");
  sqlite3* connection = handleOf(store.database(Connection::Main).engine());
  sqlite3_exec(connection, "pragma max_page_count=1", nullptr, nullptr, nullptr);  // no page more than there are
  const auto addMany = [&] {
    for (int i = 0; i < 100; ++i) addRow(set);
  };
  EXPECT_EQ(faultOf([&] {
              Unit unit(store);
              addMany();
            }),
            Fault::DiskFull);
  EXPECT_FALSE(Unit::openIn(store));
  EXPECT_EQ(set.count(), 20);
  EXPECT_EQ(faultOf([&] {
              Unit unit(store);
              EXPECT_EQ(faultOf(addMany), Fault::DiskFull);
              EXPECT_EQ(faultOf([&] { addRow(set); }), Fault::Other) << "nothing more enters a unit that is lost";
              unit.finish();
            }),
            Fault::Other);
  sqlite3_exec(connection, "pragma max_page_count=1000000", nullptr, nullptr, nullptr);
  addRow(set);
  EXPECT_EQ(set.count(), 21) << "the store is usable again";
}

TEST_F(Faults, ACommitThatFailsLeavesNothing) {
  Store store(folder.path());
  RecordSet set(store, "select * from jfjl");
  sqlite3* connection = handleOf(store.database(Connection::Main).engine());
  sqlite3_commit_hook(
      connection, [](void*) { return 1; }, nullptr);
  Unit unit(store);
  addRow(set);
  EXPECT_EQ(faultOf([&] { unit.finish(); }), Fault::Other);
  sqlite3_commit_hook(connection, nullptr, nullptr);
  EXPECT_EQ(rows(store, "select * from jfjl"), 20);
  EXPECT_EQ(faultOf([&] { set.get("bz"); }), Fault::RowGone);
  addRow(set);
  EXPECT_EQ(set.count(), 21);
}

TEST_F(Faults, AnotherDatabaseUnderAnOpenSet) {
  const Folder second;
  Store store(folder.path());
  RecordSet set(store, "select * from jfjl");
  EXPECT_EQ(set.get("bz").text().size(), 2000u);
  Store(second.path()).database(Connection::Main);
  store.connect(Connection::Main, connectionText(second.path(), livePath(Connection::Main), mainPassword));
  EXPECT_EQ(faultOf([&] { set.next(); }), Fault::Other);
  set.refresh();
  EXPECT_EQ(set.count(), 0);
}

}  // namespace
}  // namespace store
