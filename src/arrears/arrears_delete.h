// Removes arrears: the selected row, its student's rows, or everything that is settled.
#pragma once

#include "arrears/arrears_ledger.h"
#include "kit/editing.h"
#include "kit/screen.h"

namespace arrears {

class Formqfcl5 : public kit::Screen {  // 删除选项
 public:
  explicit Formqfcl5(kit::Desk& desk, const kit::Editing& editing = {});
  kit::Layout layout() override;

  kit::Choice option{*this, "option", {"仅删除选定记录", "删除该生全部欠费记录", "删除数据库中所有已结清记录"}};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  void deleteSelected();
  void deleteStudent();
  void deleteSettled();
  void remove(AskedArrears chosen, const std::string& question, const std::string& done);
  const std::int64_t selected_;
};

}  // namespace arrears
