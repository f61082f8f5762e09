// Enters a suspension, and the resumption of the one that was selected; or deletes that one.
#pragma once

#include "kit/record_edit.h"

namespace students {

class Formxxfk1 : public kit::RecordEdit {  // 学生休学复课记录编辑
 public:
  explicit Formxxfk1(kit::Desk& desk, const kit::Editing& editing = {});
  kit::Layout layout() override;

  kit::Choice what{*this, "what", {"休学操作", "复课操作"}};
  kit::Field bjmc{*this, "bjmc", "院校班级", kit::Entry::Pick}, xm{*this, "xm", "学生姓名", kit::Entry::Pick},
      xh{*this, "xh", "学号", kit::Entry::Shown}, day{*this, "day", "休学日期", kit::Entry::Date};

 private:
  std::vector<Bound> bound() override;
  std::vector<kit::Rule> rules() override;
  std::vector<kit::Rule> guards() override;
  Words words() override;
  void propose() override;
  void shown(store::RecordSet& row) override;
  void adding(store::RecordSet& row) override;

  store::Sql chosen() const;
  void findStudent();
  std::string xtbh_;
  std::int64_t student_ = 0;
};

}  // namespace students
