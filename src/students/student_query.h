// The queries of the students' overview: several conditions at once, or one at a time.
#pragma once

#include "kit/query_screen.h"

namespace students {

class Formzctxscx1 : public kit::QueryScreen {  // 打开学籍资料信息设置
 public:
  // nobody: what is done when the query by one condition finds no student; it stays open.
  explicit Formzctxscx1(kit::Desk& desk, kit::Handler nobody = {});
  kit::Layout layout() override;

  kit::Field zymc{*this, "zymc", "专业名称", kit::Entry::Pick}, bjmc{*this, "bjmc", "班级名称", kit::Entry::Pick},
      xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名", kit::Entry::Pick}, xb{*this, "xb", "性别", kit::Entry::Pick};
  kit::DateCondition csrq{*this, "csrq", "出生日期"};
  kit::Field mz{*this, "mz", "民族", kit::Entry::Pick}, zzmm{*this, "zzmm", "政治面貌", kit::Entry::Pick};
  kit::DateCondition rxrq{*this, "rxrq", "入学日期"};
  kit::Field rxxs{*this, "rxxs", "入学形式", kit::Entry::Pick}, byxx{*this, "byxx", "原毕业学校", kit::Entry::Pick};
  kit::Action single{*this, "single", "单项查询", "list-filter"};  // the other screen instead
  std::optional<kit::Filter> answer;

 private:
  std::optional<std::vector<kit::Condition>> conditions() override;
  std::vector<kit::Field*> conditionFields() override;
  void accepted(kit::Filter filter) override { answer = std::move(filter); }
};

class Formzctxscx : public kit::Screen {  // 学生学籍资料查询设置
 public:
  explicit Formzctxscx(kit::Desk& desk, kit::Handler nobody = {});
  kit::Layout layout() override;

  kit::Field way{*this, "way", "查询方式", kit::Entry::Choose};
  kit::Field hint{*this, "hint", "", kit::Entry::Shown};
  kit::Field value{*this, "value", "查询内容", kit::Entry::Pick};
  kit::Field from{*this, "from", "起始日期", kit::Entry::Date}, to{*this, "to", "到", kit::Entry::Date};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "返回", "arrow-left"};
  std::optional<kit::Filter> answer;

 private:
  void wayChanged();
  void query();
  const kit::Handler nobody_;
};

}  // namespace students
