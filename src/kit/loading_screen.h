// The small screen that stands while a large one loads: shows its text, and at its timer's first tick opens the next
// screen and closes itself. It cannot be left before.
#pragma once

#include "kit/screen.h"

namespace kit {

class LoadingScreen : public Screen {
 public:
  LoadingScreen(Desk& desk, std::string name);
  void load() override { timer.start(); }
  Layout layout() override;
  bool mayClose() override { return false; }

  Field text{*this, "text", "", Entry::Shown};
  Timer timer{*this, "timer", std::chrono::milliseconds(500)};

 protected:
  virtual void proceed() = 0;  // opens the next screen
};

}  // namespace kit
