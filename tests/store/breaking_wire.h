// A wire between a store and the server that breaks where a test wants it to.
#pragma once

#include <atomic>
#include <filesystem>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace store {

class BreakingWire {
 public:
  enum class Break { Never, BeforeItArrives, BehindItsAnswer, QuietFromHere };

  // Listens on a socket in the folder, as the server itself does, and leads to the server's folder.
  BreakingWire(const std::filesystem::path& folder, const std::string& server);
  ~BreakingWire();
  BreakingWire(const BreakingWire&) = delete;
  BreakingWire& operator=(const BreakingWire&) = delete;

  // The next message with this text in it; and whether the wire is whole again at once. A quiet one is not broken, but
  // no answer comes through it any more.
  void breakAt(const std::string& text, Break where, bool comesBack = true);
  void comeBack() { gone_ = false; }

 private:
  void accept();
  void carry(int client);

  const std::filesystem::path path_;
  const std::string server_;
  int listener_;
  std::mutex lock_;
  std::string text_;
  Break where_ = Break::Never;
  bool comesBack_ = true;
  std::atomic<bool> gone_ = false, over_ = false;
  std::vector<std::thread> carriers_;
  std::thread accepting_;
};

}  // namespace store
