// The suspensions and resumptions of students: the list with all that is done to it, and the notice before it.
#pragma once

#include "kit/filter.h"
#include "kit/loading_screen.h"

namespace students {

class Formxxfk3 : public kit::LoadingScreen {  // 学生休学复课管理前台的加载窗口
 public:
  explicit Formxxfk3(kit::Desk& desk) : LoadingScreen(desk, "Formxxfk3") {}

 private:
  void proceed() override;
};

class Formxxfk : public kit::Screen {  // 学生休学复课管理前台
 public:
  explicit Formxxfk(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Field count{*this, "count", "", kit::Entry::Shown};
  kit::Grid suspensions;
  kit::Action add{*this, "add", "休学", "plus"}, resume{*this, "resume", "复课", "pencil"},
      remove{*this, "remove", "删除", "trash-2"}, query{*this, "query", "查询", "search"},
      print{*this, "print", "打印", "printer"}, toSheet{*this, "toSheet", "导出", "file-spreadsheet"},
      clearAll{*this, "clearAll", "清空", "eraser"}, back{*this, "back", "返回", "undo-2"};

  kit::Filter filter_;

 private:
  void showCount();
  void edit(kit::Mode mode, store::RecordSet* row);
  void editSelected(kit::Mode mode, const std::string& none);
  void chooseFilter();
  void printAll();
  void empty();
};

}  // namespace students
