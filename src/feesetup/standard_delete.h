// Deletes fee standards: the selected row, the rows of the filter, or all. Both bases of the standards have their
// screen; they differ in the table and the words.
#pragma once

#include "kit/editing.h"
#include "kit/screen.h"

namespace feesetup {

struct StandardDeletion;

class StandardDelete : public kit::Screen {
 public:
  StandardDelete(kit::Desk& desk, std::string name, const StandardDeletion& words, std::int64_t row,
                 std::string standardFilter);
  kit::Layout layout() override;

  kit::Choice what;
  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};
  bool answer = false;  // the rows of the filter are gone, and it is to be emptied

 private:
  void remove();
  const StandardDeletion& own_;
  const std::int64_t row_;
  const std::string standard_filter_;
};

class Formszsfbz1 : public StandardDelete {  // 记录删除, by class
 public:
  explicit Formszsfbz1(kit::Desk& desk, std::int64_t row = 0, std::string standardFilter = "");
};

class Formszsfbz4 : public StandardDelete {  // 记录删除, by enrolment form
 public:
  explicit Formszsfbz4(kit::Desk& desk, std::int64_t row = 0, std::string standardFilter = "");
};

}  // namespace feesetup
