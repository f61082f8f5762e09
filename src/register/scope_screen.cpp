#include "register/scope_screen.h"

#include "kit/rows.h"
#include "kit/validation.h"

namespace school {

using namespace kit;
using store::Sql;

ScopeScreen::ScopeScreen(Desk& all, std::string own, std::string words, Sql terms)
    : Screen(all, std::move(own), std::move(words)),
      scope(*this, "scope", {"全校信息", "专业信息", "班级信息", "学生信息"}),
      period(*this, "period", {"按日期", "按学期"}) {
  scope.onChange([this] {
    of.clear();
    showChoice();
  });
  period.onChange([this] { showChoice(); });
  of.onDrop([this] {
    of.setChoices(scope.chosen() == Major ? columnTexts(desk.store, "select * from zymcb order by zybh", "zymc")
                                          : columnTexts(desk.store, "select * from bjzl order by bjdh", "bjmc"));
  });
  xq.offers(std::move(terms), "xq");
  sfxm.offers("select * from sfxmb order by sfxmbh", "sfxmmc");
  confirm.onPress([this] {
    if (valid()) query();
  });
  cancel.onPress([this] { close(); });
}

void ScopeScreen::load() {
  for (Field* day : {&from, &to}) day->set(desk.clock.today().plain());
  showChoice();
}

void ScopeScreen::showChoice() {
  const int chosen = scope.chosen();
  of.show(chosen == Major || chosen == Class);
  of.setLabel(chosen == Major ? "请选择专业" : "请选择班级");
  for (Field* field : {&xh, &xm}) field->show(chosen == Student);
  for (Field* field : {&from, &to}) field->show(period.chosen() == ByDate);
  xq.show(period.chosen() == ByTerm);
}

bool ScopeScreen::valid() {
  const char* const badDate = "日期格式不正确,应该是 yyyy-m-d 格式！      ";
  const auto missing = [this](int wanted, const Field& field) {
    return [this, wanted, &field] { return scope.chosen() == wanted && field.blank(); };
  };
  const bool byDate = period.chosen() == ByDate;
  const auto badDay = [byDate](const Field& day) { return [byDate, &day] { return byDate && notDate(day)(); }; };
  return holds(desk.person,
               {{&of, missing(Major, of), "请选择专业！     ", kit::wrongInput},
                {&of, missing(Class, of), "请选择一个班级！     ", kit::wrongInput},
                {&xh, [this] { return scope.chosen() == Student && xh.blank() && xm.blank(); },
                 "请输入学号或姓名！学号具有唯一性，建议用学号查询！     ", kit::wrongInput},
                {&from, badDay(from), badDate, kit::wrongInput},
                {&to, badDay(to), badDate, kit::wrongInput},
                {&xq, [this, byDate] { return !byDate && xq.blank(); }, "请选择学年学期！     ", kit::wrongInput}});
}

Layout ScopeScreen::scopeLayout(Nodes between) {
  Nodes fields{of, xh, xm, from, to, xq};
  fields.insert(fields.end(), between.begin(), between.end());
  fields.push_back(sfxm);
  return {.root = column({row({group("查询范围", {scope}), group("查询方式", {period})}),
                          group("查询条件", {form(std::move(fields)), note("（收费项目为空时为所有项目）")}),
                          buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 560};
}

}  // namespace school
