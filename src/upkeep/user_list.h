// The list of users.
#pragma once

#include "kit/record_desk.h"

namespace upkeep {

class Formyhxx : public kit::Screen {  // 用户管理
 public:
  explicit Formyhxx(kit::Desk& desk);
  void load() override { users.open(); }
  kit::Layout layout() override;

  kit::RecordDesk users;
  kit::Action &add = users.button("add"), &modify = users.button("modify"), &remove = users.button("remove");
  kit::Action back{*this, "back", "返回", "arrow-left"};
};

}  // namespace upkeep
