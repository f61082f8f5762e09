// The queries of the payments' overview: conditions of one's own, or a scope with a period.
#pragma once

#include "kit/query_screen.h"
#include "register/scope_screen.h"

namespace collection {

class Formzctsf31 : public kit::QueryScreen {  // 打开交费记录信息设置
 public:
  explicit Formzctsf31(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field xq{*this, "xq", "学年学期", kit::Entry::Pick}, bjmc{*this, "bjmc", "班级名称", kit::Entry::Pick},
      xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名", kit::Entry::Pick},
      sfxm{*this, "sfxm", "收费项目", kit::Entry::Pick}, from{*this, "from", "交费日期从", kit::Entry::Date},
      to{*this, "to", "到", kit::Entry::Date}, jffs{*this, "jffs", "交费方式", kit::Entry::Pick},
      rxxs{*this, "rxxs", "入学形式", kit::Entry::Pick}, skr{*this, "skr", "收款人", kit::Entry::Pick};
  kit::Action scope{*this, "scope", "按范围查询", "list-filter"};  // the other screen instead
  std::optional<kit::Filter> answer;

 private:
  std::optional<std::vector<kit::Condition>> conditions() override;
  std::vector<kit::Field*> conditionFields() override;
  void accepted(kit::Filter filter) override { answer = std::move(filter); }
};

class Formzctsf3 : public school::ScopeScreen {  // 交费记录查询条件设置
 public:
  explicit Formzctsf3(kit::Desk& desk)
      : ScopeScreen(desk, "Formzctsf3", "交费记录查询条件设置", "select xq from jfjl group by xq order by xq") {}
  kit::Layout layout() override { return scopeLayout({}); }
  std::optional<kit::Filter> answer;

 private:
  store::Sql scopePart();
  store::Sql periodPart();
  void query() override;
};

}  // namespace collection
