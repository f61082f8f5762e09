// The system setup: majors, classes, fee items, fee standards, enrolment forms and the operation log, a tab each.
#pragma once

#include "feesetup/setup_tab.h"

namespace feesetup {

class Formsz : public kit::Screen {  // 系统初始设置
 public:
  explicit Formsz(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  SetupTab majors, classes, items;
  kit::Choice basis{*this, "basis", {"按“班级”设置收费标准", "按“入学形式”设置收费标准"}};
  kit::Field filter{*this, "filter", "记录筛选", kit::Entry::Choose};
  kit::Grid sfbzb, sfbzbrxxs;  // the one of the basis is shown
  kit::Action setStandards{*this, "setStandards", "设置", "plus"};
  kit::Action modifyStandards{*this, "modifyStandards", "修改", "edit"};
  kit::Action removeStandards{*this, "removeStandards", "删除", "trash-2"};
  kit::Action refresh{*this, "refresh", "刷新", "refresh-cw"};
  SetupTab bands;
  kit::Grid czjl;
  kit::Action clearLog{*this, "clearLog", "清空", "trash"};
  SetupTab forms;
  kit::Action back{*this, "back", "返回", "arrow-left"};

 private:
  template <class Editor> void wire(SetupTab& tab);
  template <class Editor> void openEditor(kit::Mode mode, store::RecordSet* row);
  template <class Editor> void openAtRow(kit::Grid& grid, kit::Mode mode);
  void wireStandards();
  void reload();

  bool byClass() const { return basis.chosen() == 0; }
  kit::Grid& standards() { return byClass() ? sfbzb : sfbzbrxxs; }
  void chooseBasis();
  void fillFilter();
  void showStandards();
  void emptyLog();
};

}  // namespace feesetup
