// Classes are added, changed, renamed and deleted here, with all that carries their name.
#pragma once

#include "feesetup/edit_screen.h"

namespace feesetup {

class Formszbjzl : public EditScreen {  // 班级资料编辑
 public:
  explicit Formszbjzl(kit::Desk& desk);
  void load() override;

  kit::Field zymc{*this, "zymc", "专业名称", kit::Entry::Choose};
  kit::Field bjdh{*this, "bjdh", "班级代号"};
  kit::Field bjmc{*this, "bjmc", "班级名称"};
  kit::Field jsxm{*this, "jsxm", "教师姓名", kit::Entry::Pick};

 protected:
  std::vector<Entry> entries() override {
    return {{zymc, "zymc", 18}, {bjdh, "bjdh", 10}, {bjmc, "bjmc", 24}, {jsxm, "jsxm", 12}};
  }
  std::vector<kit::Rule> rules() override;
  void remember() override;
  void add() override;
  void modify() override;
  void remove() override;

 private:
  void proposeClass();
  void write(store::RecordSet& target, const std::string& moment);
  std::string zybh_;  // the code of the major shown
  std::string oldName_;
};

}  // namespace feesetup
