#include "students/student_query.h"

#include <utility>

#include "base/text.h"
#include "kit/rows.h"
#include "kit/validation.h"
#include "register/classes.h"

namespace students {

using kit::Condition;
using store::Sql;

namespace {

constexpr int usualAge = 7200;  // days

const std::vector<Sql> keywordPieces{
    "  where xm like  '%",  "%' or xb like  '%",    "%' or xh like  '%",   "%' or lxdh like  '%", "%' or sjhm like  '%",
    "%' or jtzz like  '%",  "%' or sfzhm like  '%", "%' or yzbm like  '%", "%' or mz like  '%",   "%' or bz like  '%",
    "%' or zzmm like  '%",  "%' or rxrq like  '%",  "%' or csrq like  '%", "%' or bjmc like  '%", "%' or rxxs like  '%",
    "%'  or zymc like  '%", "%'  or byxx like  '%", "%'  or yhkh like  '%"};
constexpr std::size_t piecesOfSingle = 15;  // the query by one condition leaves the last three columns out
const Sql keywordEnd = "%' order by xh";

const kit::QueryPlan plan{"xs",
                          "rxrq",
                          {"", "单击确认查看当日新增的学籍资料信息", "单击确认查看本月新增的学籍资料信息",
                           "单击确认查看本年度新增的学籍资料信息", "单击确认查看全部学籍资料信息"},
                          keywordPieces,
                          keywordEnd};

}  // namespace

Formzctxscx1::Formzctxscx1(kit::Desk& all, kit::Handler nobody)
    : QueryScreen(all, "Formzctxscx1", "打开学籍资料信息设置", plan) {
  zymc.offers("select * from zymcb order by zybh", "zymc");
  bjmc.offers(
      [this] {
        return zymc.blank() ? Sql("select * from bjzl order by bjdh")
                            : Sql("select * from bjzl where zymc='") + zymc.trimmed() + "' order by bjdh";
      },
      "bjmc");
  xm.offers(
      [this] {
        return bjmc.blank() ? Sql("select * from xs order by xh")
                            : Sql("select * from xs where bjmc='") + bjmc.trimmed() + "' order by xh";
      },
      "xm");
  xb.setChoices({"男", "女"});
  mz.offers("select mz from xs group by mz", "mz");
  zzmm.offers("select zzmm from xs group by zzmm", "zzmm");
  rxxs.offers("select * from rxxs", "rxxs");
  byxx.offers("select byxx from xs group by byxx", "byxx");
  csrq.day.calendarFrom = -usualAge;
  wireConditions();
  single.onPress([this, nobody = std::move(nobody)] {
    close();
    answer = open<Formzctxscx>(nobody);
  });
}

std::vector<kit::Field*> Formzctxscx1::conditionFields() {
  return {&zymc, &bjmc, &xh, &xm, &xb, &csrq.day, &mz, &zzmm, &rxrq.day, &rxxs, &byxx};
}

std::optional<std::vector<Condition>> Formzctxscx1::conditions() {
  const auto born = dated(csrq, "csrq");
  if (!born) return std::nullopt;
  const auto entered = dated(rxrq, "rxrq");
  if (!entered) return std::nullopt;
  return std::vector{zymc.blank() ? Condition{} : school::majorIs(school::majorCode(desk.store, zymc.trimmed())),
                     kit::equals("bjmc", bjmc.text()),
                     kit::equals("xh", xh.text()),
                     kit::equals("xm", xm.text()),
                     kit::equals("xb", xb.text()),
                     *born,
                     kit::equals("mz", mz.text()),
                     kit::equals("zzmm", zzmm.text()),
                     *entered,
                     kit::equals("rxxs", rxxs.text()),
                     kit::equals("byxx", byxx.text())};
}

namespace {

// One way of asking: what is offered, and what stands before the value. Two dates ask with = for the first and <= for
// the second: who entered on a day is asked for, and the second day only closes the question.
struct Way {
  const char* name;
  const char* hint;
  Sql choices;
  const char* column;
  Sql before;
};

const std::vector<Way>& ways() {
  static const std::vector<Way> all{
      {"按专业名称查询", "请选择一个专业", "select * from zymcb  order by zybh", "zymc", " where  left(xtbh,2)='"},
      {"按班级名称查询", "请选择您要查询的班级", "select * from bjzl  order by bjdh", "bjmc", " where  bjmc='"},
      {"按学号查询", "请输入学号", "select * from xs  order by xh", "xh", " where  xh='"},
      {"按姓名查询", "请输入姓名", "select * from xs  order by xh", "xm", "  where xm='"},
      {"按性别查询", "请选择姓别", {}, "", "  where xb='"},
      {"按出生日期查询", "请输入日期：yyyy-m-d", {}, "csrq", {}},
      {"按身份证号码查询", "请输入身份证号码", "select sfzhm from xs  group by sfzhm", "sfzhm", "  where sfzhm='"},
      {"按政治面貌查询", "请选择政治面貌", "select zzmm from xs group by zzmm", "zzmm", "  where zzmm='"},
      {"按入学日期查询", "请输入日期：yyyy-m-d", {}, "rxrq", {}},
      {"按入学形式查询", "请选择入学形式", "select * from rxxs", "rxxs", "  where rxxs='"},
      {"按民族查询", "请选择民族", "select mz from xs group by mz", "mz", "  where mz='"},
      {"模糊查询", "请输入关键字", {}, "", {}}};
  return all;
}

const Way* wayOf(const kit::Field& field) {
  for (const Way& one : ways())
    if (field.text() == one.name) return &one;
  return nullptr;
}

bool asksForDates(const Way& way) { return way.before.empty() && *way.column != '\0'; }

}  // namespace

Formzctxscx::Formzctxscx(kit::Desk& all, kit::Handler nobody)
    : Screen(all, "Formzctxscx", "学生学籍资料查询设置"), nobody_(std::move(nobody)) {
  std::vector<std::string> names;
  for (const Way& one : ways()) names.emplace_back(one.name);
  way.setChoices(names);
  way.onChange([this] { wayChanged(); });
  value.onDrop([this] {
    const Way* chosen = wayOf(way);
    if (chosen && !chosen->choices.empty())
      value.setChoices(kit::columnTexts(desk.store, chosen->choices, chosen->column));
  });
  confirm.onPress([this] { query(); });
  cancel.onPress([this] { close(); });
  wayChanged();
}

void Formzctxscx::wayChanged() {
  const Way* chosen = wayOf(way);
  const bool dates = chosen && asksForDates(*chosen);
  hint.set(chosen ? chosen->hint : "");
  value.clear();
  value.setChoices(way.text() == "按性别查询" ? std::vector<std::string>{"男", "女"} : std::vector<std::string>{});
  value.show(!dates);
  from.show(dates);
  to.show(dates);
}

void Formzctxscx::query() {
  const Way* chosen = wayOf(way);
  const bool dates = chosen && asksForDates(*chosen);
  kit::Field& first = dates ? from : value;
  const auto badDates = [&] {
    return dates && !(base::Date::parse(from.trimmed()) && base::Date::parse(to.trimmed()));
  };
  const std::vector<kit::Rule> rules = {
      {&way, [&] { return chosen == nullptr; }, "请选择一种查询方式 ！     ", kit::wrongInput},
      {&first, kit::blank(first), "请设置参数值,您也可以进行选择 ！     ", kit::wrongInput},
      {&from, badDates, "日期格式不正确，应该是 yyyy-m-d 格式！   ", kit::wrongInput}};
  if (!kit::holds(desk.person, rules)) return;
  Sql filter;
  if (dates) {
    const Sql column = Sql::column(chosen->column);
    filter = Sql("  where ") + column + "=#" + from.trimmed() + "# and " + column + "<=#" + to.trimmed() + "#";
  } else if (chosen->before.empty()) {
    filter =
        kit::keywordChain({keywordPieces.begin(), keywordPieces.begin() + piecesOfSingle}, value.trimmed(), keywordEnd);
  } else {
    const bool major = chosen == &ways().front();
    filter = chosen->before + (major ? school::majorCode(desk.store, value.trimmed()) : value.trimmed()) + "'";
  }
  const long long count = rows(Sql("select * from xs ") + filter).count();
  if (count == 0) {
    if (nobody_) nobody_();
    return inform("相关记录不存在 ！      ", "信息提示");
  }
  answer = kit::Filter{
      filter, way.text() +
                  (dates ? "：条件是从 [ " + from.trimmed() + " ] 到 [ " + to.trimmed() + " ]，符合条件的记录有："
                         : "：条件是 [ " + value.trimmed() + " ] ，符合条件的记录有：") +
                  base::caption(count) + " 条！"};
  close();
}

}  // namespace students
