// Enrolment forms are added, renamed and deleted here.
#pragma once

#include "feesetup/edit_screen.h"

namespace feesetup {

class Formszrxxs : public EditScreen {  // 学生入学形式设置
 public:
  explicit Formszrxxs(kit::Desk& desk);

  kit::Field rxxs{*this, "rxxs", "入学形式"};

 protected:
  std::vector<Entry> entries() override { return {{rxxs, "rxxs", 18}}; }
  std::vector<kit::Rule> rules() override;
  void remember() override { oldName_ = rxxs.trimmed(); }
  void add() override;
  void modify() override;
  void remove() override;

 private:
  std::string oldName_;
};

}  // namespace feesetup
