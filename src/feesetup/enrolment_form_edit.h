// Enrolment forms are added, renamed and deleted here.
#pragma once

#include "kit/record_edit.h"

namespace feesetup {

class Formszrxxs : public kit::RecordEdit {  // 学生入学形式设置
 public:
  explicit Formszrxxs(kit::Desk& desk, const kit::Editing& editing = {});

  kit::Field rxxs{*this, "rxxs", "入学形式"};

 private:
  std::vector<Bound> bound() override { return {{rxxs, 18}}; }
  std::vector<kit::Rule> rules() override;
  std::vector<kit::Rule> guards() override;
  Words words() override;
  void adding(store::RecordSet& row) override { row.set("bsh", now()); }
  void modifying(store::RecordSet& row) override;
};

}  // namespace feesetup
