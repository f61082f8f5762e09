// What the import of amounts due shall cover: which students, which items, which term, due by when.
#pragma once

#include "arrears/due_import.h"
#include "kit/screen.h"
#include "kit/validation.h"

namespace arrears {

class Formqfcl2 : public kit::Screen {  // 应交费学生信息导入设置
 public:
  explicit Formqfcl2(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Choice range;  // its last option only where the fee standards are kept by enrolment form
  kit::Field value{*this, "value", "", kit::Entry::Pick};
  kit::Choice items{*this, "items", {"导入全部项目", "仅导入指定项目"}};
  kit::Field item{*this, "item", "收费项目", kit::Entry::Pick};
  kit::Field xq{*this, "xq", "学年学期设置", kit::Entry::Pick};
  kit::Field qfts{*this, "qfts", "提示提前量"};
  kit::Field bjrq{*this, "bjrq", "最晚补交日期", kit::Entry::Date};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  using Range = DueImport::Range;
  Range chosenRange() const { return static_cast<Range>(range.chosen()); }
  bool onlyOneItem() const { return items.chosen() == 1; }
  void rangeChanged();
  void itemsChanged();
  std::vector<kit::Rule> rules();
  DueImport chosen();
  void import();
};

}  // namespace arrears
