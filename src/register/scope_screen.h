// The older way of asking, shared by the overviews: whose rows (the school's, a major's, a class's, a student's), and
// of which days or which term.
#pragma once

#include "kit/filter.h"
#include "kit/screen.h"

namespace school {

class ScopeScreen : public kit::Screen {
 public:
  // terms: the statement behind the list of terms.
  ScopeScreen(kit::Desk& desk, std::string name, std::string title, store::Sql terms);
  void load() override;

  kit::Choice scope, period;
  kit::Field of{*this, "of", "请选择班级", kit::Entry::Pick};  // the major or the class, by the scope
  kit::Field xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名"};
  kit::Field from{*this, "from", "起始日期", kit::Entry::Date}, to{*this, "to", "截止日期", kit::Entry::Date};
  kit::Field xq{*this, "xq", "请选择学年学期", kit::Entry::Pick},
      sfxm{*this, "sfxm", "请选择收费项目", kit::Entry::Pick};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "返回", "arrow-left"};

 protected:
  enum Scope { School, Major, Class, Student };
  enum Period { ByDate, ByTerm };

  virtual void query() = 0;
  bool valid();                                 // what the scope and the period need is there, or the person was told
  kit::Layout scopeLayout(kit::Nodes between);  // further fields stand between the term and the item

 private:
  void showChoice();
};

}  // namespace school
