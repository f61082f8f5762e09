// A disk between the embedded engine and the files: it fails where a test wants it to, and it notes what is written,
// synced and deleted, so that the disk as a power cut would leave it can be built from any moment.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

struct sqlite3_vfs;

namespace store {

class RecordingDisk {
 public:
  RecordingDisk();  // every database that is opened while it stands lies on it
  ~RecordingDisk();
  RecordingDisk(const RecordingDisk&) = delete;
  RecordingDisk& operator=(const RecordingDisk&) = delete;

  enum class What { Write, Truncate, Sync, Delete };
  // Asked before each call ("read", "write", "unlock", ...): an engine's code of an error, or 0, or for a read garbage.
  static constexpr int garbage = -1;
  std::function<int(const std::string& call)> fault;

  void record(const std::filesystem::path& folder);  // from here; the files as they are now are safe on the disk
  std::size_t moments() const { return steps_.size(); }

  // The disk after so many steps when the power goes: synced is what is surely there; of the rest as much as the kind
  // of the cut leaves.
  enum class Cut { NothingUnsynced, AllUnsynced, LastWriteTorn, DeletionsUndone, SectorsAtRandom };
  static constexpr Cut cuts[] = {Cut::NothingUnsynced, Cut::AllUnsynced, Cut::LastWriteTorn, Cut::DeletionsUndone,
                                 Cut::SectorsAtRandom};
  void image(std::size_t moment, Cut cut, std::minstd_rand& random, const std::filesystem::path& into) const;

  int answer(const char* call) const { return fault ? fault(call) : 0; }
  void note(What what, const char* file, std::int64_t at = 0, std::string data = {}, bool durable = false);
  sqlite3_vfs* below() const { return below_; }

 private:
  struct Step {
    What what;
    std::string file;  // its name in the folder
    std::int64_t at;   // or the length to which it is cut
    std::string data;
    bool durable;  // a deletion: the folder was synced with it
  };
  using Files = std::map<std::string, std::string>;

  std::filesystem::path folder_;
  Files start_;
  std::vector<Step> steps_;
  sqlite3_vfs* below_;
  std::unique_ptr<sqlite3_vfs> own_;
};

}  // namespace store
