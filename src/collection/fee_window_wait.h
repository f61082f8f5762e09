// Stands while the fee window loads, so that the operator sees something at once.
#pragma once

#include "collection/fee_window.h"
#include "kit/loading_screen.h"

namespace collection {

class Formzctsf6 : public kit::LoadingScreen {  // 收费窗口的等待提示
 public:
  explicit Formzctsf6(kit::Desk& desk, FeeWindowFor given = {})
      : LoadingScreen(desk, "Formzctsf6"), given_(std::move(given)) {}

 private:
  void proceed() override;
  const FeeWindowFor given_;
};

}  // namespace collection
