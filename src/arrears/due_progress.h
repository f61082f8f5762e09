// Runs the import of amounts due once it has been painted.
#pragma once

#include "kit/loading_screen.h"

namespace arrears {

class Formqfcl3 : public kit::LoadingScreen {  // 应交费导入进度
 public:
  explicit Formqfcl3(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field notice{*this, "notice", "", kit::Entry::Shown};

 private:
  void proceed() override;
  std::optional<int> import();
};

}  // namespace arrears
