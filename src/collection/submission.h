// The front desk's daily settlement: what has been collected and not yet been handed to the back office.
#pragma once

#include "kit/screen.h"

namespace collection {

class Formzctsf9 : public kit::Screen {  // 未提交收费记录明细
 public:
  explicit Formzctsf9(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::List list;
  kit::Field summary{*this, "summary", "", kit::Entry::Shown};
  kit::Action submit{*this, "submit", "提交确认", "upload"}, print{*this, "print", "打印报表", "printer"},
      all{*this, "all", "前台所有记录", "users"}, back{*this, "back", "返回", "arrow-left"};
  kit::Action mine_entry{*this, "mine_entry", "返回我的未提交记录"},
      all_entry{*this, "all_entry", "查看前台所有未提交记录"};

 private:
  void listMine();
  void listAll();
  base::Money fill(const store::Sql& sql);
  void submitMine();
  bool submitted(const std::vector<std::int64_t>& counted, base::Money total);
  void printMine();
};

}  // namespace collection
