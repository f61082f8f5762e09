// Makes the computer around a test's desk fail: the nth call of desktop, printer, sheets or progress from here on, once
// or from then on; or slow, or blocked.
#pragma once

#include <functional>
#include <limits>

#include "platform/desktop.h"

namespace support {

struct PlatformFaults {
  static constexpr const char* words = "外部设备没有响应，请检查后再试！";
  long long calls = 0, failed = 0;  // since at() or off()
  std::function<void()> before;     // each call

  void at(long long nth, bool forGood = false) {
    calls = failed = 0;
    nth_ = nth;
    forGood_ = forGood;
  }
  void off() { at(std::numeric_limits<long long>::max()); }
  void pass() {
    ++calls;
    if (before) before();
    if (calls != nth_ && !(forGood_ && calls > nth_)) return;
    ++failed;
    throw platform::PlatformError(words);
  }

 private:
  long long nth_ = std::numeric_limits<long long>::max();
  bool forGood_ = false;
};

}  // namespace support
