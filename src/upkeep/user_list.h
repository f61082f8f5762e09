// The list of users.
#pragma once

#include "kit/screen.h"

namespace upkeep {

class Formyhxx : public kit::Screen {  // 用户管理
 public:
  explicit Formyhxx(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Grid users;
  kit::Action add{*this, "add", "添加", "plus"}, modify{*this, "modify", "修改", "pencil"},
      remove{*this, "remove", "删除", "trash-2"}, back{*this, "back", "返回", "undo-2"};

 private:
  void edit(kit::Mode mode, const std::string& noneText);
};

}  // namespace upkeep
