// The front desk of class transfers: students are ticked in their class and move to another one.
#pragma once

#include <deque>

#include "kit/screen.h"
#include "students/class_transfer.h"

namespace students {

class Formtb : public kit::Screen {  // 学生调班转班事务处理窗口
 public:
  static constexpr std::size_t mostStudents = 90;

  explicit Formtb(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;
  void moveOnFrom(const kit::Member& member) override;

  kit::Field fromClass{*this, "fromClass", "学生现所在班级", kit::Entry::Choose};
  kit::Field toClass{*this, "toClass", "请选择要调到哪个班", kit::Entry::Choose};
  kit::Field zymc{*this, "zymc", "调入专业", kit::Entry::Shown};
  kit::Field xtbh{*this, "xtbh", "调入后系统编号", kit::Entry::Shown};
  kit::Frame students{*this, "students", ""};
  std::deque<kit::Check> boxes;
  kit::Action tickAll{*this, "tickAll", "全选"}, confirm{*this, "confirm", "确认", "check"},
      back{*this, "back", "返回", "arrow-left"};
  kit::Timer timer{*this, "timer", std::chrono::milliseconds(100)};

 private:
  void chooseFrom();
  void chooseTo();
  bool refuseSameClass();
  void showStudents();
  void showTarget();
  void toggleAll();
  void transfer();
  std::vector<Mover> listed_;  // of each box; those beyond the boxes too
};

}  // namespace students
