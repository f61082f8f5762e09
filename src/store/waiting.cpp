#include "store/waiting.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace store {
namespace {

using namespace std::chrono_literals;

constexpr auto noticeAfter = 200ms, betweenNotices = 100ms;
constexpr int shortestPause = 1, longestPause = 25;  // milliseconds
constexpr auto wayGiven = 40ms;                      // longer than a waiting one's pause
constexpr auto vainly = 1s;

struct flock wholeFile(short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  return lock;
}

}  // namespace

WaitingSign::WaitingSign(std::filesystem::path database) : path_(std::move(database)) {
  if (!path_.empty()) path_ += "-wait";
}

WaitingSign::~WaitingSign() {
  if (file_ >= 0) ::close(file_);
}

bool WaitingSign::ready() {
  if (file_ < 0 && !tried_ && !path_.empty()) file_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  tried_ = true;
  return file_ >= 0;
}

void WaitingSign::raise() {
  if (raised_ || !ready()) return;
  struct flock lock = wholeFile(F_RDLCK);  // several may wait at once
  raised_ = ::fcntl(file_, F_OFD_SETLK, &lock) == 0;
}

void WaitingSign::lower() {
  if (!raised_) return;
  struct flock lock = wholeFile(F_UNLCK);
  ::fcntl(file_, F_OFD_SETLK, &lock);
  raised_ = false;
}

bool WaitingSign::othersWait() {
  if (!ready()) return false;
  struct flock lock = wholeFile(F_WRLCK);
  return ::fcntl(file_, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

void WaitingSign::giveWay() {
  const auto start = std::chrono::steady_clock::now();
  if (start - inVain_ < vainly) return;
  while (othersWait()) {
    if (std::chrono::steady_clock::now() - start < wayGiven) {
      std::this_thread::sleep_for(1ms);
    } else {
      inVain_ = start;  // a desk that hangs with its sign up must not slow every save down
      return;
    }
  }
}

Wait::Wait(std::chrono::milliseconds patience, std::function<void(bool)> onWait, WaitingSign& sign)
    : patience_(patience), onWait_(std::move(onWait)), sign_(sign), random_(std::random_device{}()) {}

bool Wait::again(int round) {
  const auto now = std::chrono::steady_clock::now();
  if (round == 0) {
    start_ = now;
    waiting_ = true;
    sign_.raise();
  }
  const auto waited = now - start_;
  if (waited >= patience_) return false;
  if (told_ ? now - toldAt_ >= betweenNotices : waited >= noticeAfter) {
    told_ = true;
    toldAt_ = now;
    tell(true);
  }
  const int longest = std::min(longestPause, shortestPause + 2 * (round + 1));
  std::this_thread::sleep_for(
      std::chrono::milliseconds(std::uniform_int_distribution(shortestPause, longest)(random_)));
  return true;
}

void Wait::over() {
  if (!waiting_) return;
  waiting_ = false;
  sign_.lower();
  if (std::exchange(told_, false)) tell(false);
}

void Wait::tell(bool waiting) noexcept {
  try {
    if (onWait_) onWait_(waiting);
  } catch (...) {  // a notice that cannot be shown is no reason to stop waiting
  }
}

}  // namespace store
