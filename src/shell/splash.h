// The splash: tests for users, then leads to the login or to the first-run screen.
#pragma once

#include "kit/screen.h"

namespace shell {

class Form1 : public kit::Screen {  // splash, without a caption
 public:
  explicit Form1(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;
  bool mayClose() override { return false; }  // the login comes by itself

  kit::Field product{*this, "product", "", kit::Entry::Shown};
  kit::Timer timer{*this, "timer", std::chrono::milliseconds(500)};

 private:
  int ticks_ = 0;
};

}  // namespace shell
