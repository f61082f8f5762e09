#include "arrears/arrears_query.h"

#include "base/text.h"
#include "kit/notice.h"
#include "kit/validation.h"
#include "register/classes.h"

namespace arrears {

using kit::Condition;
using store::Sql;

namespace {

const kit::QueryPlan plan{
    "qfjl",
    "qfrq",
    {"", "单击确认查看当日欠费记录", "单击确认查看本月欠费记录", "单击确认查看本年度欠费记录",
     "单击确认查看全部欠费记录"},
    {"  where xm like  '%", "%' or xq like  '%", "%' or xh like  '%", "%'  or qfrq like  '%", "%' or bjmc like  '%",
     "%' or clfs like  '%", "%' or sfxm like  '%", "%' or bjrq like  '%", "%' or sbjrq like  '%", "%' or skr like  '%"},
    "%'"};

// Behind another condition the later days are asked for with =>: the office's older conditions are written so, and the
// store takes both.
void writeLaterAsEver(Condition& one, std::string_view column) { one.next = Sql::column(column) + "=>#"; }

}  // namespace

QuestionFields::QuestionFields(kit::Screen& screen, const std::string& prefix)
    : bjmc(screen, prefix + "bjmc", "班级名称（为空时为全校）", kit::Entry::Pick),
      xq(screen, prefix + "xq", "学年学期", kit::Entry::Pick),
      sfxm(screen, prefix + "sfxm", "收费项目", kit::Entry::Pick),
      from(screen, prefix + "from", "交费日期从", kit::Entry::Date),
      to(screen, prefix + "to", "到", kit::Entry::Date) {}

Formqfcl11::Formqfcl11(kit::Desk& all)
    : QueryScreen(all, "Formqfcl11", "打开欠费信息", plan),
      wanted(*this, "wanted", {"实交少于应交的学生", "实交等于应交的学生", "实交多于应交的学生"}) {
  xq.offers("select xq from qfjl group by xq", "xq");
  bjmc.offers("select bjmc from qfjl group by bjmc", "bjmc");
  xm.offers(
      [this] {
        return bjmc.blank() ? Sql("select xm from qfjl group by xm")
                            : Sql("select xm from qfjl where bjmc='") + bjmc.trimmed() + "' group by xm";
      },
      "xm");
  sfxm.offers("select sfxm from qfjl group by sfxm", "sfxm");
  clfs.offers("select clfs from qfjl group by clfs", "clfs");
  wireConditions();
  wire(unpaid);
  wire(compared);
  due.rightAligned = true;
  searchUnpaid.onPress([this] { showUnpaid(); });
  compare.onPress([this] { showCompared(); });
  byScope.onPress([this] {
    close();
    answer = open<Formqfcl1>();
  });
}

void Formqfcl11::wire(QuestionFields& fields) {
  fields.bjmc.offers("select * from bjzl order by bjdh", "bjmc");
  fields.xq.offers("select xq from jfjl group by xq", "xq");
  fields.sfxm.offers("select * from sfxmb order by sfxmbh", "sfxmmc");
}

std::vector<kit::Field*> Formqfcl11::conditionFields() {
  return {&xq, &bjmc, &xh, &xm, &sfxm, &qfrq.day, &bjrq.day, &sbjrq.day, &clfs};
}

std::optional<std::vector<Condition>> Formqfcl11::conditions() {
  std::vector<Condition> all{kit::equals("xq", xq.text()), kit::equals("bjmc", bjmc.text()),
                             kit::equals("xh", xh.text()), kit::equals("xm", xm.text()),
                             kit::equals("sfxm", sfxm.text())};
  const struct {
    kit::DateCondition& field;
    const char* column;
  } dates[] = {{qfrq, "qfrq"}, {bjrq, "bjrq"}, {sbjrq, "sbjrq"}};
  for (const auto& date : dates) {
    auto condition = dated(date.field, date.column);
    if (!condition) return std::nullopt;
    if (date.field.compare() == kit::Compare::AtLeast) writeLaterAsEver(*condition, date.column);
    all.push_back(std::move(*condition));
  }
  all.push_back(kit::equals("clfs", clfs.text()));
  return all;
}

std::optional<PaymentQuestion> Formqfcl11::asked(QuestionFields& fields) {
  PaymentQuestion question{fields.bjmc.trimmed(), fields.xq.trimmed(), fields.sfxm.trimmed(),
                           base::Date::parse(fields.from.trimmed()), base::Date::parse(fields.to.trimmed())};
  const auto refuse = [&](const char* text) {
    stop(text, kit::wrongInput);
    (fields.from.blank() ? fields.from : fields.to).focus();
    return std::nullopt;
  };
  if (fields.from.blank() != fields.to.blank()) return refuse("交费日期是一个区间值！ ");
  for (kit::Field* day : {&fields.from, &fields.to}) {
    if (day->blank() || base::Date::parse(day->trimmed())) continue;
    refuseDate(*day);
    return std::nullopt;
  }
  if (question.from && *question.to < *question.from) return refuse("起始日期不能大于截止日期！ ");
  return question;
}

void Formqfcl11::showUnpaid() {
  const auto question = asked(unpaid);
  if (!question) return;
  std::optional<long long> found;
  {
    kit::Notice notice(desk.progress, "开始搜索 ...");
    found = listUnpaid(desk.store, *question, desk.clock.now(), [&](const std::string&, long long so_far) {
      notice.show("已搜索到" + base::caption(so_far) + "条记录 ...");
    });
  }
  show(reports::List::Unpaid, found, "信息搜索完毕！    ", "相关记录不存在！    ");
}

void Formqfcl11::showCompared() {
  if (!kit::holds(desk.person, {{&due, kit::blank(due), "应交金额不能为空！ ", kit::wrongInput},
                                {&due, kit::notAmount(due), "应交金额应该是数字，请重新输入！ ", kit::wrongInput}}))
    return;
  const auto question = asked(compared);
  if (!question) return;
  std::optional<long long> found;
  {
    kit::Notice notice(desk.progress, "开始搜索相关记录，请稍等 ...");
    found = listByPaid(desk.store, *question, base::Money::leading(due.text()), static_cast<PaidAs>(wanted.chosen()),
                       desk.clock.now(),
                       [&](const std::string& name, long long) { notice.show("正在加载" + name + "的信息 ..."); });
    notice.show("正在筛选已加载的信息 ...");
  }
  show(reports::List::Comparison, found, "信息搜索完毕！ ", "不存在相匹配记录！ ");
}

void Formqfcl11::show(reports::List computed, std::optional<long long> found, const char* done, const char* none) {
  if (!found) return inform("不存在需要查询的学生信息！    ", "信息提示");
  if (found == 0) return inform(none, "信息提示");
  inform(done, "信息提示");
  answer = ArrearsFilter{{}, computed};
  close();
}

Formqfcl1::Formqfcl1(kit::Desk& all)
    : ScopeScreen(all, "Formqfcl1", "欠费记录查询条件设置", "select xq from qfjl group by xq order by xq") {
  clfs.offers("select clfs from qfjl group by clfs", "clfs");
}

void Formqfcl1::query() {
  const std::string chosen = of.trimmed();
  std::vector<Condition> all{
      scope.chosen() == Major ? school::majorIs(school::majorCode(desk.store, chosen)) : Condition{},
      kit::equals("bjmc", scope.chosen() == Class ? chosen : ""),
      kit::equals("xh", scope.chosen() == Student ? xh.text() : ""),
      kit::equals("xm", scope.chosen() == Student && xh.blank() ? xm.text() : "")};
  if (period.chosen() == ByDate) {
    all.push_back(kit::onDate("qfrq", kit::Compare::AtLeast, *base::Date::parse(from.trimmed())));
    all.push_back(kit::onDate("qfrq", kit::Compare::AtMost, *base::Date::parse(to.trimmed())));
  } else {
    all.push_back(kit::equals("xq", xq.text()));
  }
  all.push_back(kit::equals("clfs", clfs.text()));
  all.push_back(kit::equals("sfxm", sfxm.text()));
  const Sql filter = kit::chain(all);
  if (rows(Sql("select * from qfjl") + filter).empty())
    return inform("相关记录不存在，请检查条件设置是否正确！    ", "信息提示");
  answer = ArrearsFilter{{filter}};
  close();
}

}  // namespace arrears
