// Majors are added, renamed and deleted here.
#pragma once

#include "feesetup/edit_screen.h"

namespace feesetup {

class Formszzymc : public EditScreen {  // 专业及班级分类编辑
 public:
  explicit Formszzymc(kit::Desk& desk);

  kit::Field zybh{*this, "zybh", "专业代号"};
  kit::Field zymc{*this, "zymc", "专业名称"};

 protected:
  std::vector<Entry> entries() override { return {{zybh, "zybh", 8}, {zymc, "zymc", 18}}; }
  std::vector<kit::Rule> rules() override;
  void propose() override;
  void remember() override { oldName_ = zymc.trimmed(); }
  void add() override;
  void modify() override;
  void remove() override;

 private:
  std::string oldName_;
};

// Gives the majors the positions 1, 2, 3 ... in the order of their codes.
void renumberMajors(store::Store& store);

}  // namespace feesetup
