// What the list of suspensions is filtered by: a class, a student's name, both, or neither for all of them.
#pragma once

#include "kit/filter.h"
#include "kit/screen.h"

namespace students {

class Formxxfk2 : public kit::Screen {  // 休学复课记录查询设置
 public:
  explicit Formxxfk2(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field bjmc{*this, "bjmc", "院校班级", kit::Entry::Pick}, xm{*this, "xm", "学生姓名", kit::Entry::Pick};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "返回", "arrow-left"};
  std::optional<kit::Filter> answer;
};

}  // namespace students
