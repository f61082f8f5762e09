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
  kit::Field state{*this, "state", "", kit::Entry::Shown};
  // After a fault, which has been told.
  kit::Action retry{*this, "retry", "重试", "refresh-cw"};
  kit::Action choose{*this, "choose", "选择文件夹", "folder-open"};
  kit::Action leave{*this, "leave", "退出", "x"};
  kit::Timer timer{*this, "timer", std::chrono::milliseconds(500)};

 private:
  void begin();
  void offerWays(bool offered);
  std::string school_;
  int ticks_ = 0;
};

}  // namespace shell
