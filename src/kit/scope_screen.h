// The older way of asking, shared by the overviews: whose rows (the school's, a major's, a class's, a student's), and
// of which days or which term.
#pragma once

#include "kit/filter.h"
#include "kit/screen.h"

namespace kit {

class ScopeScreen : public Screen {
 public:
  // terms: the statement behind the list of terms.
  ScopeScreen(Desk& desk, std::string name, std::string title, store::Sql terms);
  void load() override;

  Choice scope, period;
  Field of{*this, "of", "请选择班级", Entry::Pick};  // the major or the class, by the scope
  Field xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名"};
  Field from{*this, "from", "起始日期", Entry::Date}, to{*this, "to", "截止日期", Entry::Date};
  Field xq{*this, "xq", "请选择学年学期", Entry::Pick}, sfxm{*this, "sfxm", "请选择收费项目", Entry::Pick};
  Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "返回", "undo-2"};

 protected:
  enum Scope { School, Major, Class, Student };
  enum Period { ByDate, ByTerm };

  virtual void query() = 0;
  bool valid();                       // what the scope and the period need is there, or the person was told
  Layout scopeLayout(Nodes between);  // further fields stand between the term and the item

 private:
  void showChoice();
};

}  // namespace kit
