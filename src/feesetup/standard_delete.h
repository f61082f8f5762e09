// Deletes fee standards: the row that the grid stands on, the rows of the filter, or all. Both bases of the standards
// have their screen; they differ in the table and the words.
#pragma once

#include "kit/screen.h"

namespace feesetup {

struct StandardDeletion {
  store::Sql table;   // all rows
  store::Sql filter;  // the condition, up to where the filter's entry goes in
  std::string option, question, report;
};

class StandardDelete : public kit::Screen {
 public:
  StandardDelete(kit::Desk& desk, std::string name, const StandardDeletion& words);
  kit::Layout layout() override;

  kit::Choice what;
  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  void remove();
  const StandardDeletion& own_;
};

}  // namespace feesetup
