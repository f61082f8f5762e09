#include "store/recording_disk.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <new>
#include <set>

namespace store {
namespace {

namespace fs = std::filesystem;

constexpr const char* ownName = "recording";
constexpr const char* ciphered = "multipleciphers-recording";  // as the engine's cipher names itself over a disk
constexpr std::size_t sector = 512;

struct File {
  sqlite3_file base;
  RecordingDisk* disk;
  const char* name;  // null for files without one
  sqlite3_file* behind() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};
File& of(sqlite3_file* file) { return *reinterpret_cast<File*>(file); }

template <class Call> int through(sqlite3_file* file, const char* name, Call call) {
  if (const int code = of(file).disk->answer(name)) return code;
  sqlite3_file* behind = of(file).behind();
  return call(behind, *behind->pMethods);
}

int closeFile(sqlite3_file* file) { return of(file).behind()->pMethods->xClose(of(file).behind()); }
int readFile(sqlite3_file* file, void* data, int size, sqlite3_int64 at) {
  const int code = of(file).disk->answer("read");
  if (code != SQLITE_OK && code != RecordingDisk::garbage) return code;
  const int result = of(file).behind()->pMethods->xRead(of(file).behind(), data, size, at);
  if (code == RecordingDisk::garbage) std::memset(data, 0x5a, static_cast<std::size_t>(size));
  return result;
}
int writeFile(sqlite3_file* file, const void* data, int size, sqlite3_int64 at) {
  const int code = through(file, "write", [&](auto* to, auto& io) { return io.xWrite(to, data, size, at); });
  if (code == SQLITE_OK) {
    of(file).disk->note(RecordingDisk::What::Write, of(file).name, at,
                        {static_cast<const char*>(data), static_cast<std::size_t>(size)});
  }
  return code;
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
  const int code = through(file, "truncate", [&](auto* to, auto& io) { return io.xTruncate(to, size); });
  if (code == SQLITE_OK) of(file).disk->note(RecordingDisk::What::Truncate, of(file).name, size);
  return code;
}
int syncFile(sqlite3_file* file, int flags) {
  const int code = through(file, "sync", [&](auto* to, auto& io) { return io.xSync(to, flags); });
  if (code == SQLITE_OK) of(file).disk->note(RecordingDisk::What::Sync, of(file).name);
  return code;
}
int sizeOfFile(sqlite3_file* file, sqlite3_int64* size) {
  return through(file, "size", [&](auto* to, auto& io) { return io.xFileSize(to, size); });
}
int lockFile(sqlite3_file* file, int level) {
  return through(file, "lock", [&](auto* to, auto& io) { return io.xLock(to, level); });
}
int unlockFile(sqlite3_file* file, int level) {
  return through(file, "unlock", [&](auto* to, auto& io) { return io.xUnlock(to, level); });
}
int reservedFile(sqlite3_file* file, int* result) {
  return through(file, "reserved", [&](auto* to, auto& io) { return io.xCheckReservedLock(to, result); });
}
int controlFile(sqlite3_file* file, int operation, void* argument) {
  return through(file, "control", [&](auto* to, auto& io) { return io.xFileControl(to, operation, argument); });
}
int sectorOfFile(sqlite3_file*) { return static_cast<int>(sector); }
int traitsOfFile(sqlite3_file*) { return 0; }

const sqlite3_io_methods methods{1,           closeFile,    readFile,     writeFile,  truncateFile,
                                 syncFile,    sizeOfFile,   lockFile,     unlockFile, reservedFile,
                                 controlFile, sectorOfFile, traitsOfFile, nullptr,    nullptr,
                                 nullptr,     nullptr,      nullptr,      nullptr};

RecordingDisk& diskOf(sqlite3_vfs* vfs) { return *static_cast<RecordingDisk*>(vfs->pAppData); }

int openFile(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* given) {
  file->pMethods = nullptr;
  RecordingDisk& disk = diskOf(vfs);
  if (const int code = disk.answer("open")) return code;
  File& opened = *new (file) File{{nullptr}, &disk, name};
  const int code = disk.below()->xOpen(disk.below(), name, opened.behind(), flags, given);
  if (code == SQLITE_OK) opened.base.pMethods = &methods;
  return code;
}

int deleteFile(sqlite3_vfs* vfs, const char* name, int syncFolder) {
  RecordingDisk& disk = diskOf(vfs);
  if (const int code = disk.answer("delete")) return code;
  const int code = disk.below()->xDelete(disk.below(), name, syncFolder);
  if (code == SQLITE_OK) disk.note(RecordingDisk::What::Delete, name, 0, {}, syncFolder != 0);
  return code;
}

void put(std::string& file, std::size_t at, std::string_view data) {
  if (file.size() < at + data.size()) file.resize(at + data.size());
  std::copy(data.begin(), data.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
}

}  // namespace

RecordingDisk::RecordingDisk() : below_(sqlite3_vfs_find("unix")), own_(std::make_unique<sqlite3_vfs>(*below_)) {
  own_->iVersion = 1;
  own_->szOsFile = static_cast<int>(sizeof(File)) + below_->szOsFile;
  own_->zName = ownName;
  own_->pAppData = this;
  own_->xOpen = openFile;
  own_->xDelete = deleteFile;
  sqlite3_vfs_register(own_.get(), 0);
  sqlite3mc_vfs_create(ownName, 1);
}

RecordingDisk::~RecordingDisk() {
  sqlite3mc_vfs_destroy(ciphered);
  sqlite3_vfs_unregister(own_.get());
  if (sqlite3_vfs* usual = sqlite3_vfs_find("multipleciphers-unix")) sqlite3_vfs_register(usual, 1);
}

void RecordingDisk::record(const fs::path& folder) {
  folder_ = folder;
  steps_.clear();
  start_.clear();
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    start_[entry.path().filename().string()] = std::string(std::istreambuf_iterator<char>(in), {});
  }
}

void RecordingDisk::note(What what, const char* file, std::int64_t at, std::string data, bool durable) {
  if (folder_.empty() || !file || fs::path(file).parent_path() != folder_) return;
  steps_.push_back({what, fs::path(file).filename().string(), at, std::move(data), durable});
}

void RecordingDisk::image(std::size_t moment, Cut cut, std::minstd_rand& random, const fs::path& into) const {
  // What is synced up to the moment: of each file everything before its last sync. The engine syncs the folder with a
  // file's first sync, and with a deletion when it is asked to.
  std::map<std::string, std::size_t> synced;
  for (std::size_t i = 0; i < moment; ++i) {
    const Step& step = steps_[i];
    if (step.what == What::Sync || (step.what == What::Delete && step.durable)) synced[step.file] = i + 1;
  }
  const auto safe = [&](std::size_t i) {
    const auto until = synced.find(steps_[i].file);
    return until != synced.end() && i < until->second;
  };
  std::size_t lastWrite = moment;
  for (std::size_t i = 0; i < moment; ++i) {
    if (steps_[i].what == What::Write) lastWrite = i;
  }
  Files files = start_;
  std::set<std::string> back;  // deleted files that came back: what was done to the new one of the name is not theirs
  for (std::size_t i = 0; i < moment; ++i) {
    const Step& step = steps_[i];
    const bool sure = safe(i);
    if (!sure && (cut == Cut::NothingUnsynced || back.contains(step.file))) continue;
    switch (step.what) {
      case What::Write:
        for (std::size_t from = 0; from < step.data.size(); from += sector) {
          if (!sure && cut == Cut::LastWriteTorn && i == lastWrite && from >= sector) break;
          if (!sure && cut == Cut::SectorsAtRandom && random() % 2) continue;
          put(files[step.file], static_cast<std::size_t>(step.at) + from,
              std::string_view(step.data).substr(from, sector));
        }
        break;
      case What::Truncate: files[step.file].resize(static_cast<std::size_t>(step.at)); break;
      case What::Delete:
        if (sure || (cut != Cut::DeletionsUndone && !(cut == Cut::SectorsAtRandom && random() % 2))) {
          files.erase(step.file);
        } else {
          back.insert(step.file);
        }
        break;
      case What::Sync: break;
    }
  }
  fs::create_directories(into);
  for (const auto& entry : fs::directory_iterator(into)) fs::remove(entry.path());
  for (const auto& [name, data] : files) std::ofstream(into / name, std::ios::binary) << data;
}

}  // namespace store
