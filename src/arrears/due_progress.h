// Runs the import of amounts due once it has been painted.
#pragma once

#include "arrears/due_import.h"
#include "kit/loading_screen.h"

namespace arrears {

class Formqfcl3 : public kit::LoadingScreen {  // 应交费导入进度
 public:
  explicit Formqfcl3(kit::Desk& desk, DueImport chosen = {});
  kit::Layout layout() override;

  kit::Field notice{*this, "notice", "", kit::Entry::Shown};
  bool answer = false;  // the import has come to its end

 private:
  void proceed() override;
  std::optional<int> import();
  const DueImport chosen_;
};

}  // namespace arrears
