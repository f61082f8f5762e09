// The suspensions and resumptions of students: the list with all that is done to it, and the notice before it.
#pragma once

#include "kit/loading_screen.h"
#include "kit/record_desk.h"

namespace students {

class Formxxfk3 : public kit::LoadingScreen {  // 学生休学复课管理前台的加载窗口
 public:
  explicit Formxxfk3(kit::Desk& desk) : LoadingScreen(desk, "Formxxfk3") {}

 private:
  void proceed() override;
};

class Formxxfk : public kit::Screen {  // 学生休学复课管理前台
 public:
  explicit Formxxfk(kit::Desk& desk);
  void load() override { suspensions.open(); }
  kit::Layout layout() override;

  kit::RecordDesk suspensions;
  kit::Action back{*this, "back", "返回", "arrow-left"};
};

}  // namespace students
