// The notice of long work. It goes when its scope ends, also by a fault; no notice outlives the event that showed it.
#pragma once

#include "kit/desk.h"

namespace kit {

class Notice {
 public:
  explicit Notice(Progress& progress) : progress_(progress) {}
  Notice(Progress& progress, const std::string& text) : progress_(progress) { show(text); }
  ~Notice() { progress_.hide(); }
  Notice(const Notice&) = delete;
  Notice& operator=(const Notice&) = delete;

  void show(const std::string& text, long long done = 0, long long total = 0) { progress_.show(text, done, total); }
  // Of rows that come quickly: looks up once in a while.
  bool due(long long done) const { return done % 500 == 0; }
  void count(const std::string& text, long long done, long long total = 0) {
    if (due(done)) show(text, done, total);
  }

 private:
  Progress& progress_;
};

}  // namespace kit
