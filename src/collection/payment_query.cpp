#include "collection/payment_query.h"

#include "base/text.h"
#include "register/classes.h"

namespace collection {

using kit::Condition;
using store::Sql;

namespace {

const kit::QueryPlan plan{
    "jfjl",
    "jfrq",
    {"", "单击确认查看当日收费记录", "单击确认查看本月收费记录", "单击确认查看本年度收费记录",
     "单击确认查看全部收费记录"},
    {"  where xm like  '%", "%' or xq like  '%", "%' or xh like  '%", "%' or jfrq like  '%", "%' or bjmc like  '%",
     "%' or jffs like  '%", "%' or sfxm like  '%", "%' or rxxs like  '%", "%' or fpbh like  '%"},
    "%'"};

}  // namespace

Formzctsf31::Formzctsf31(kit::Desk& all) : QueryScreen(all, "Formzctsf31", "打开交费记录信息设置", plan) {
  xq.offers("select xq from jfjl group by xq", "xq");
  bjmc.offers("select * from bjzl order by bjdh", "bjmc");
  xm.offers(
      [this] {
        return bjmc.blank() ? Sql("select * from xs order by xh")
                            : Sql("select * from xs where bjmc='") + bjmc.trimmed() + "'";
      },
      "xm");
  sfxm.offers("select sfxm from jfjl group by sfxm", "sfxm");
  jffs.offers("select jffs from jfjl group by jffs", "jffs");
  rxxs.offers("select * from rxxs", "rxxs");
  skr.offers("select skr from jfjl group by skr", "skr");
  wireConditions();
  scope.onPress([this] {
    close();
    answer = open<Formzctsf3>();
  });
}

std::vector<kit::Field*> Formzctsf31::conditionFields() {
  return {&xq, &bjmc, &xh, &xm, &sfxm, &from, &to, &jffs, &rxxs, &skr};
}

std::optional<std::vector<Condition>> Formzctsf31::conditions() {
  if (from.blank() != to.blank()) {
    stop(to.blank() ? "日期是一个区间值,您需要设置截止日期！      " : "日期是一个区间值,您需要设置起始日期！      ",
         kit::wrongInput);
    (to.blank() ? to : from).focus();
    return std::nullopt;
  }
  Condition days;
  if (!from.blank()) {
    const auto first = base::Date::parse(from.trimmed()), last = base::Date::parse(to.trimmed());
    if (!first || !last) {
      refuseDate(first ? to : from);
      return std::nullopt;
    }
    const Sql between = Sql("jfrq>=#") + first->plain() + "# and jfrq<=#";
    days = {last->plain(), between, between, "#"};
  }
  return std::vector{
      kit::equals("xq", xq.text()),     kit::equals("bjmc", bjmc.text()), kit::equals("xh", xh.text()),
      kit::equals("xm", xm.text()),     kit::equals("sfxm", sfxm.text()), days,
      kit::equals("jffs", jffs.text()), kit::equals("rxxs", rxxs.text()), kit::equals("skr", skr.text())};
}

// What opens the clause, up to the period.
Sql Formzctsf3::scopePart() {
  switch (scope.chosen()) {
    case Major: return Sql(" where left(xtbh,2)='") + school::majorCode(desk.store, of.trimmed()) + "' and ";
    case Class: return Sql(" where bjmc='") + of.trimmed() + "' and ";
    case Student:
      return xh.blank() ? Sql(" where xm='") + xm.trimmed() + "' and " : Sql(" where xh='") + xh.trimmed() + "' and ";
    default: return " where ";
  }
}

Sql Formzctsf3::periodPart() {
  const std::string item = sfxm.trimmed();
  if (period.chosen() == ByTerm) {
    const Sql term = Sql("xq='") + xq.trimmed() + "'";
    return item.empty() ? term : term + " and  sfxm='" + item + "'";
  }
  const Sql days = Sql("jfrq>=#") + from.trimmed() + "# and jfrq<=#" + to.trimmed() + "#";
  return item.empty() ? days : days + " and sfxm='" + item + "'";
}

void Formzctsf3::query() {
  if (scope.chosen() == Student && xh.blank() &&
      !ask("您没有输入学号，将按姓名查询，同名学生的记录会一并列出，这样可能会导致查询结果不准确！您确认继续吗？      ",
           "操作提示"))
    return;
  kit::Filter filter;
  filter.where = scopePart() + periodPart() + " order by jfrq";
  base::Money sum;
  store::RecordSet found = rows(Sql("select * from jfjl") + filter.where);
  store::forEach(found, [&](store::RecordSet& row) { sum += row.get("je").money(); });
  filter.heading = scope.options()[static_cast<std::size_t>(scope.chosen())] + "：" +
                   (period.chosen() == ByDate ? "从 " + from.trimmed() + " 到 " + to.trimmed() : xq.trimmed()) +
                   " 共有" + "交费记录 " + std::to_string(found.count()) + " 条，交费金额：" + sum.fixed2() + " 元！ ";
  answer = std::move(filter);
  close();
}

}  // namespace collection
