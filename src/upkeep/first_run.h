// The first start: the first user, who may do everything, is set up here.
#pragma once

#include "kit/screen.h"

namespace upkeep {

class Formyhxx4 : public kit::Screen {  // 系统启用设置
 public:
  explicit Formyhxx4(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field yhxm{*this, "yhxm", "请输入您的姓名"};
  kit::Field yhmm{*this, "yhmm", "请您设置一个密码", kit::Entry::Password};
  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  void save();
  bool addFirstUser();  // false: there are users already
};

}  // namespace upkeep
