// Waiting for other computers, and letting them in.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <random>

namespace store {

// A lock on a small file beside a database: who waits for the database holds it, and who has just written gives way
// while somebody does. Without it a busy desk would never let another one in, for SQLite has no queue.
class WaitingSign {
 public:
  explicit WaitingSign(std::filesystem::path database);
  ~WaitingSign();
  WaitingSign(const WaitingSign&) = delete;
  WaitingSign& operator=(const WaitingSign&) = delete;

  void raise();
  void lower();
  void giveWay();  // pauses while another one waits, a moment at most, and not soon again when that was in vain

 private:
  bool othersWait();
  bool ready();  // opens the file; a folder that cannot be written goes without the sign

  std::filesystem::path path_;
  int file_ = -1;
  bool tried_ = false, raised_ = false;
  std::chrono::steady_clock::time_point inVain_;
};

// One wait: short random pauses that grow, a notice when it lasts (told again while it lasts), an end to the patience.
class Wait {
 public:
  Wait(std::chrono::milliseconds patience, std::function<void(bool)> onWait, WaitingSign& sign);

  bool again(int round);  // pauses; false when the patience is over
  void over();

 private:
  std::chrono::milliseconds patience_;
  std::function<void(bool)> onWait_;
  WaitingSign& sign_;
  void tell(bool waiting) noexcept;
  std::chrono::steady_clock::time_point start_, toldAt_;
  std::minstd_rand random_;
  bool waiting_ = false, told_ = false;
};

}  // namespace store
