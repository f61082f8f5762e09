// Fee items are added, renamed, reordered and deleted here.
#pragma once

#include "feesetup/edit_screen.h"

namespace feesetup {

class Formszsfxm : public EditScreen {  // 收费项目名称编辑
 public:
  explicit Formszsfxm(kit::Desk& desk);

  kit::Field sfxmbh{*this, "sfxmbh", "收费项目编号"};
  kit::Field sfxmmc{*this, "sfxmmc", "收费项目名称"};

 protected:
  std::vector<Entry> entries() override { return {{sfxmbh, "sfxmbh", 6}, {sfxmmc, "sfxmmc", 18}}; }
  std::vector<kit::Rule> rules() override;
  void propose() override;
  void remember() override;
  void add() override;
  void modify() override;
  void remove() override;

 private:
  void write();
  void rename();
  void reorder();
  std::string oldCode_, oldName_;
};

}  // namespace feesetup
