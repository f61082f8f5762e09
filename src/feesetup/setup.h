// The system setup: majors, classes, fee items, fee standards, enrolment forms and the operation log, a tab each.
#pragma once

#include "kit/record_desk.h"

namespace feesetup {

class Formsz : public kit::Screen {  // 系统初始设置
 public:
  explicit Formsz(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::RecordDesk majors, classes, items;
  kit::Choice basis{*this, "basis", {"按“班级”设置收费标准", "按“入学形式”设置收费标准"}};
  kit::Field filter{*this, "filter", "记录筛选", kit::Entry::Choose};
  kit::RecordDesk classStandards, formStandards;  // only those of the basis are in sight
  kit::Action refresh{*this, "refresh", "刷新", "refresh-cw"};
  kit::RecordDesk bands;
  kit::Grid czjl;
  kit::Action clearLog{*this, "clearLog", "清空", "trash"};
  kit::RecordDesk forms;
  kit::Action back{*this, "back", "返回", "arrow-left"};

 private:
  void wireStandards();
  void readAgain();

  bool byClass() const { return basis.chosen() == 0; }
  kit::RecordDesk& standards() { return byClass() ? classStandards : formStandards; }
  std::vector<std::string> filterEntries();
  void chooseBasis();
  void showStandards();
  void emptyLog();
};

}  // namespace feesetup
