// Stands while the fee window loads, so that the operator sees something at once.
#pragma once

#include "kit/screen.h"

namespace collection {

class Formzctsf6 : public kit::Screen {  // 收费窗口的等待提示
 public:
  explicit Formzctsf6(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Timer timer{*this, "timer", std::chrono::milliseconds(500)};
};

}  // namespace collection
