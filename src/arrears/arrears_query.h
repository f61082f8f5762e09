// What the arrears' overview shows: arrears under conditions of one's own, who has paid nothing, who paid less, exactly
// or more than an amount; and the older way by scope and period.
#pragma once

#include "arrears/comparison.h"
#include "kit/query_screen.h"
#include "register/scope_screen.h"
#include "reports/export.h"

namespace arrears {

// What the arrears' overview is to hold: arrears, or one of the two computed lists.
struct ArrearsFilter : kit::Filter {
  reports::List arrears_list_mode = reports::List::Arrears;
};

// The fields of a question about payments; two tabs ask it.
struct QuestionFields {
  QuestionFields(kit::Screen& screen, const std::string& prefix);
  kit::Field bjmc, xq, sfxm, from, to;
};

class Formqfcl11 : public kit::QueryScreen {  // 打开欠费信息
 public:
  explicit Formqfcl11(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field xq{*this, "xq", "学年学期", kit::Entry::Pick}, bjmc{*this, "bjmc", "班级名称", kit::Entry::Pick},
      xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名", kit::Entry::Pick},
      sfxm{*this, "sfxm", "收费项目", kit::Entry::Pick};
  kit::DateCondition qfrq{*this, "qfrq", "欠费日期"}, bjrq{*this, "bjrq", "拟补交日期"},
      sbjrq{*this, "sbjrq", "实补交日期"};
  kit::Field clfs{*this, "clfs", "当前状态", kit::Entry::Pick};
  kit::Action byScope{*this, "byScope", "按范围查询", "list-filter"};  // the other screen instead

  QuestionFields unpaid{*this, "unpaid_"};
  kit::Action searchUnpaid{*this, "searchUnpaid", "开始搜索", "search"};

  QuestionFields compared{*this, "compared_"};
  kit::Field due{*this, "due", "应交金额"};
  kit::Choice wanted;
  kit::Action compare{*this, "compare", "开始对比", "search"};
  std::optional<ArrearsFilter> answer;

 private:
  std::optional<std::vector<kit::Condition>> conditions() override;
  std::vector<kit::Field*> conditionFields() override;
  void accepted(kit::Filter filter) override { answer = ArrearsFilter{std::move(filter)}; }

  void wire(QuestionFields& fields);
  std::optional<PaymentQuestion> asked(QuestionFields& fields);
  void showUnpaid();
  void showCompared();
  void show(reports::List computed, std::optional<long long> found, const char* done, const char* none);
};

class Formqfcl1 : public school::ScopeScreen {  // 欠费记录查询条件设置
 public:
  explicit Formqfcl1(kit::Desk& desk);
  kit::Layout layout() override { return scopeLayout({clfs}); }

  kit::Field clfs{*this, "clfs", "状态", kit::Entry::Pick};
  std::optional<ArrearsFilter> answer;

 private:
  void query() override;
};

}  // namespace arrears
