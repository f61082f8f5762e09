// Fee items are added, renamed, reordered and deleted here.
#pragma once

#include "kit/record_edit.h"

namespace feesetup {

class Formszsfxm : public kit::RecordEdit {  // 收费项目名称编辑
 public:
  explicit Formszsfxm(kit::Desk& desk, const kit::Editing& editing = {});

  kit::Field sfxmbh{*this, "sfxmbh", "收费项目编号"};
  kit::Field sfxmmc{*this, "sfxmmc", "收费项目名称"};

 private:
  std::vector<Bound> bound() override { return {{sfxmbh, 6}, {sfxmmc, 18}}; }
  std::vector<kit::Rule> rules() override;
  std::vector<kit::Rule> guards() override;
  Words words() override;
  void propose() override;
  void adding(store::RecordSet& row) override { row.set("bsh", now()); }
  void modify() override;
  void modifying(store::RecordSet& row) override;
};

}  // namespace feesetup
