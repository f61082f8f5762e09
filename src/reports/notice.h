// The notice of long work; it goes when the work ends, also by a fault.
#pragma once

#include "kit/desk.h"

namespace reports {

class Notice {
 public:
  explicit Notice(kit::Desk& desk) : progress_(desk.progress) {}
  ~Notice() {
    if (shown_) progress_.hide();
  }
  Notice(const Notice&) = delete;
  Notice& operator=(const Notice&) = delete;
  void count(const std::string& text, long long done, long long total = 0) {
    constexpr long long step = 500;
    if (done % step != 0) return;
    shown_ = true;
    progress_.show(text, done, total);
  }

 private:
  kit::Progress& progress_;
  bool shown_ = false;
};

}  // namespace reports
