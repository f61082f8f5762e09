// What the disk can do to the embedded engine: calls that fail, reads that are wrong for a moment, the power going.
#include <gmock/gmock.h>
#include <sqlite3.h>

#include "store/database.h"
#include "store/receipts.h"
#include "store/recording_disk.h"
#include "store/sqlite_engine.h"

namespace store {
namespace {

using namespace std::chrono_literals;

class Disks : public testing::Test {
 protected:
  Disks() { save(store, 10); }

  // The nth call of a kind, once or from then on.
  void failAt(const std::string& kind, int code, int nth, bool forGood = false) {
    struck = false;
    disk.fault = [=, this, count = 0](const std::string& call) mutable {
      const bool here = call == kind && (++count == nth || (forGood && count > nth));
      struck |= here;
      return here ? code : 0;
    };
  }
  long long walk() {
    long long count = 0;
    RecordSet set(store, "select * from jfjl");
    forEach(set, [&](RecordSet& at) { count += !at.get("bz").empty(); });
    return count;
  }

  Folder folder;
  RecordingDisk disk;
  Store store{folder.path()};
  bool struck = false;
};

TEST_F(Disks, AReadThatFailsForAMomentIsNeitherDamageNorAWrongKey) {
  const struct {
    const char* what;
    int code;
    bool forGood;
  } cases[] = {{"a folder that does not answer", SQLITE_IOERR_READ, true},
               {"one read", SQLITE_IOERR_READ, false},
               {"a page that is wrong once", RecordingDisk::garbage, false}};
  for (const auto& each : cases) {
    struck = true;
    int told = 0;
    for (int nth = 1; struck; ++nth) {
      store.close();
      failAt("read", each.code, nth, each.forGood);
      try {
        EXPECT_EQ(walk(), 10);
      } catch (const StoreError& error) {
        EXPECT_EQ(error.fault, Fault::Unreadable) << each.what << ", read " << nth << ": " << error.what();
        ++told;
      }
      disk.fault = nullptr;
      EXPECT_EQ(walk(), 10);
    }
    EXPECT_GT(told, 3) << each.what;
  }
}

TEST_F(Disks, AfterAFaultInTheMiddleOfASaveTheWordsAreTrue) {
  const std::pair<const char*, int> calls[] = {{"write", SQLITE_IOERR_WRITE},   {"sync", SQLITE_IOERR_FSYNC},
                                               {"delete", SQLITE_IOERR_DELETE}, {"lock", SQLITE_IOERR_LOCK},
                                               {"unlock", SQLITE_IOERR_UNLOCK}, {"write", SQLITE_FULL},
                                               {"open", SQLITE_CANTOPEN},       {"read", SQLITE_IOERR_READ}};
  int refused = 0;
  for (const auto& [call, code] : calls) {
    struck = true;
    for (int nth = 1; struck; ++nth) {
      const long long before = walk(), counted = store.saved();
      failAt(call, code, nth);
      try {
        save(store, 10);
      } catch (const StoreError& error) {
        EXPECT_NE(error.fault, Fault::Damaged);
        EXPECT_NE(error.fault, Fault::Unsure);
        ++refused;
      }
      disk.fault = nullptr;
      EXPECT_EQ(walk() - before, 10 * (store.saved() - counted)) << call << " " << nth;
      save(store, 1);
    }
  }
  EXPECT_GT(refused, 20);
  receipts(folder.path());
}

TEST_F(Disks, ACommitWhoseEndNobodyCouldSeeIsToldAsUnsure) {
  auto engine = openSqlite({folder.file(Connection::Main), std::string(mainPassword), false, 100ms});
  engine->begin();
  engine->prepare("insert into jfjl (lsh) values ('1')")->step();
  disk.fault = [gone = false](const std::string& call) mutable {
    if (!gone) gone = call == "unlock";  // the journal has been deleted
    return gone ? SQLITE_IOERR : 0;
  };
  EXPECT_EQ(faultOf([&] { engine->commit(); }), Fault::Unsure);
  disk.fault = nullptr;
  engine.reset();
  EXPECT_EQ(rows(store, "select * from jfjl"), 11);
}

TEST_F(Disks, AfterAPowerCutNothingAcknowledgedIsLostAndNothingIsHalf) {
  store.close();
  const auto main = folder.file(Connection::Main).parent_path();
  disk.record(main);
  std::map<long long, std::size_t> saved;  // by when
  for (int i = 0; i < 5; ++i) {
    const Receipt receipt = save(store, 10);
    saved[receipt.number] = disk.moments();
  }
  store.close();
  const Folder other;
  std::filesystem::copy(folder.path(), other.path(), std::filesystem::copy_options::recursive);
  std::minstd_rand random(5);
  const unsigned images = howMany("STORE_POWER_CUTS", 60);
  int fewer = 0;
  for (unsigned i = 0; i < images; ++i) {
    const std::size_t moment = images < 100 ? random() % (disk.moments() + 1) : i * (disk.moments() + 1) / images;
    const auto cut = RecordingDisk::cuts[i % std::size(RecordingDisk::cuts)];
    disk.image(moment, cut, random, other.file(Connection::Main).parent_path());
    const auto found = receipts(other.path());
    for (const auto& [number, when] : saved) {
      EXPECT_TRUE(when > moment || found.contains(number)) << number << " is lost at " << moment << " of " << images;
    }
    fewer += found.size() <= saved.size();
    EXPECT_EQ(integrity(other), "ok") << moment;
  }
  EXPECT_GT(fewer, 0) << "some cuts come before the end";
}

}  // namespace
}  // namespace store
