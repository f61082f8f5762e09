// Adds, changes or deletes one user, by the session's EditMode.
#pragma once

#include "kit/screen.h"

namespace upkeep {

class Formyhxx2 : public kit::Screen {  // 用户编辑
 public:
  explicit Formyhxx2(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Field yhxm{*this, "yhxm", "用户姓名"};
  kit::Field yhjb{*this, "yhjb", "用户级别", kit::Entry::Pick};
  kit::Field yhmm{*this, "yhmm", "用户密码", kit::Entry::Password};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  bool filled();
  void add();
  void modify();
  void remove();
};

}  // namespace upkeep
