// Classes are added, changed, renamed and deleted here, with all that carries their name.
#pragma once

#include "kit/record_edit.h"

namespace feesetup {

class Formszbjzl : public kit::RecordEdit {  // 班级资料编辑
 public:
  explicit Formszbjzl(kit::Desk& desk, const kit::Editing& editing = {});

  kit::Field zymc{*this, "zymc", "专业名称", kit::Entry::Choose};
  kit::Field bjdh{*this, "bjdh", "班级代号"};
  kit::Field bjmc{*this, "bjmc", "班级名称"};
  kit::Field jsxm{*this, "jsxm", "教师姓名", kit::Entry::Pick};

 private:
  std::vector<Bound> bound() override { return {{zymc, 18}, {bjdh, 10}, {bjmc, 24}, {jsxm, 12}}; }
  std::vector<kit::Rule> rules() override;
  std::vector<kit::Rule> guards() override;
  Words words() override;
  void shown(store::RecordSet& row) override;
  void adding(store::RecordSet& row) override;
  void modifying(store::RecordSet& row) override;
  void removing() override;

  void proposeClass();
  std::string zybh_;  // the code of the major shown
};

}  // namespace feesetup
