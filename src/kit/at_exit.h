// What is done when a scope is left, whatever way.
#pragma once

#include <utility>

namespace kit {

template <class Do> class AtExit {
 public:
  explicit AtExit(Do what) : what_(std::move(what)) {}
  ~AtExit() { what_(); }
  AtExit(const AtExit&) = delete;
  AtExit& operator=(const AtExit&) = delete;

 private:
  Do what_;
};

}  // namespace kit
