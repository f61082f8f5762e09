// Majors are added, renamed and deleted here.
#pragma once

#include "kit/record_edit.h"

namespace feesetup {

// Gives the majors the positions 1, 2, 3 ... in the order of their codes.
void renumberMajors(store::Store& store);

class Formszzymc : public kit::RecordEdit {  // 专业及班级分类编辑
 public:
  explicit Formszzymc(kit::Desk& desk, const kit::Editing& editing = {});

  kit::Field zybh{*this, "zybh", "专业代号"};
  kit::Field zymc{*this, "zymc", "专业名称"};

 private:
  std::vector<Bound> bound() override { return {{zybh, 8}, {zymc, 18}}; }
  std::vector<kit::Rule> rules() override;
  std::vector<kit::Rule> guards() override;
  Words words() override;
  void propose() override;
  void adding(store::RecordSet& row) override;
  void modify() override;
  void modifying(store::RecordSet& row) override;
  void removing() override { renumberMajors(desk.store); }
};

}  // namespace feesetup
