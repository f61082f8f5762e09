// The list of users.
#pragma once

#include "kit/desk_screen.h"

namespace upkeep {

class Formyhxx : public kit::DeskScreen {  // 用户管理
 public:
  explicit Formyhxx(kit::Desk& desk);
};

}  // namespace upkeep
