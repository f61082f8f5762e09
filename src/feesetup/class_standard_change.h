// The amount of a class's standard is changed here, or that of the item everywhere, or the term of the rows shown.
#pragma once

#include "kit/screen.h"

namespace feesetup {

class Formszsfbz2 : public kit::Screen {  // 收费标准信息修改
 public:
  // shown: the statement of the rows that the grid shows.
  explicit Formszsfbz2(kit::Desk& desk, std::int64_t row = 0, store::Sql shown = {});
  void load() override;
  kit::Layout layout() override;

  kit::Choice what{*this, "what", {"收费标准", "学年学期"}};
  kit::Field before{*this, "before", "收费项目", kit::Entry::Shown};
  kit::Field after{*this, "after", "收费金额"};
  kit::Field caution{*this, "caution", "", kit::Entry::Shown};
  kit::Check all{*this, "all", "批修改全部信息"};
  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  bool changesTerm() const { return what.chosen() == 1; }
  void show();
  void save();
  void saveTerm();
  void saveAmount();
  void saveAmounts();
  void done(const std::string& text);

  const std::int64_t row_;
  const store::Sql shown_;
  std::string term_, item_, amount_;  // of the row
};

}  // namespace feesetup
