// The session's user changes their own password.
#pragma once

#include "kit/screen.h"

namespace upkeep {

class Formyhxx3 : public kit::Screen {  // 用户密码修改
 public:
  explicit Formyhxx3(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field old_password{*this, "old_password", "请输入旧密码", kit::Entry::Password};
  kit::Field new_password{*this, "new_password", "请输入新密码", kit::Entry::Password};
  kit::Field repeated{*this, "repeated", "新密码确认", kit::Entry::Password};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  void save();
};

}  // namespace upkeep
