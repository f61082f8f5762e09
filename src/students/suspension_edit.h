// Enters a suspension, and the resumption of the one that the list stands on; or deletes that one.
#pragma once

#include "kit/screen.h"

namespace students {

class Formxxfk1 : public kit::Screen {  // 学生休学复课记录编辑
 public:
  explicit Formxxfk1(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Choice what{*this, "what", {"休学操作", "复课操作"}};
  kit::Field bjmc{*this, "bjmc", "院校班级", kit::Entry::Pick}, xm{*this, "xm", "学生姓名", kit::Entry::Pick},
      xh{*this, "xh", "学号", kit::Entry::Shown}, day{*this, "day", "休学日期", kit::Entry::Date};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  bool resuming() const { return what.chosen() == 1; }
  void fillNames();
  void findStudent();
  void act();
  void add();
  void setResumed();
  void remove();
  store::RecordSet& row();

  kit::Mode mode_ = kit::Mode::Add;
  std::string xtbh_;
};

}  // namespace students
