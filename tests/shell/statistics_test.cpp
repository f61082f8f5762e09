// The figures of the statistics bars, checked against sums that ask for each line by a statement of its own.
#include "shell/statistics.h"

#include <random>

#include "base/text.h"
#include "shell/console.h"
#include "support/school.h"

namespace shell {
namespace {

using base::Money;
using kit::Box;
using store::RecordSet;
using store::Sql;
using support::opened;
using support::TestDesk;

struct CountedSchool : support::School {
  CountedSchool() {
    session.Rights.fill(true);
    major("11", "计算机");
    major("12", "护理");
    for (const char* name : {"计算机1班", "护理A班", "空班"})
      add("bjzl", {{"zybh", "11"}, {"bjdh", name}, {"bjmc", name}});
  }
  Money sum(const Sql& sql, const char* column) {
    Money total;
    RecordSet set(store, sql);
    store::forEach(set, [&](RecordSet& row) { total += row.get(column).money(); });
    return total;
  }
  // Rows as offices leave them: other cases of letters, blanks that were never filled, odd marks.
  void muddle(unsigned seed) {
    std::mt19937 random(seed);
    const auto any = [&](std::vector<store::Value> values) { return values[random() % values.size()]; };
    const std::vector<store::Value> classes{"计算机1班", "护理A班", "护理a班", "别的班", ""};
    const std::vector<store::Value> amounts{"0", "12.5", "300", "-4.25", "1000", store::Value()};
    const std::vector<store::Value> days{"2026-9-7", "2026-9-1", "2025-9-30", "2026-10-2", "", store::Value()};
    for (int i = 0; i < 120; ++i) {
      add("xs", {{"xh", std::to_string(i)},
                 {"bjmc", any(classes)},
                 {"xb", any({"男", "女", "", store::Value()})},
                 {"xtbh", any({"1101", "1202", "1", store::Value()})}});
      add("jfjl", {{"sfxm", any({"学费", "书费A", "书费a", "住宿费"})},
                   {"je", any(amounts)},
                   {"sftj", any({"", "*", "x", store::Value()})},
                   {"skr", any({"李强", "王芳", "LI", "li"})},
                   {"jfrq", any(days)}});
      add("qfjl", {{"xh", any({"1", "2", "a3", "A3"})},
                   {"bjmc", any(classes)},
                   {"bjje", any(amounts)},
                   {"sbjje", any(amounts)},
                   {"clfs", any({"", "减免", "结清", store::Value()})},
                   {"bjrq", any(days)}});
    }
  }
};

TEST(Statistics, AgreeWithAStatementForEveryLine) {
  for (const unsigned seed : {1u, 2u, 3u}) {
    CountedSchool school;
    school.muddle(seed);
    const Statistics students = studentStatistics(school.store);
    const auto heads = [&](const Sql& where) {
      const long long all = school.count(Sql("select * from xs where ") + where);
      const long long men = school.count(Sql("select * from xs where ") + where + " and xb='男'");
      return std::vector{std::to_string(all), std::to_string(men), std::to_string(all - men)};
    };
    const auto tail = [](const std::vector<std::string>& row) { return std::vector(row.begin() + 1, row.end()); };
    ASSERT_EQ(students.first.size(), 3u);
    for (const auto& row : students.first) EXPECT_EQ(tail(row), heads(Sql("bjmc='") + row[0] + "'")) << row[0];
    EXPECT_EQ(tail(students.second.at(0)), heads("left(xtbh,2)='11'"));
    EXPECT_EQ(tail(students.second.at(1)), heads("left(xtbh,2)='12'"));

    const Statistics payments = paymentStatistics(school.store);
    ASSERT_EQ(payments.first.size(), 3u);
    for (const auto& row : payments.first) {
      const Sql item = Sql("select * from jfjl where sfxm='") + row[0] + "'";
      const Money all = school.sum(item, "je"), submitted = school.sum(item + " and sftj='*'", "je");
      EXPECT_EQ(tail(row), (std::vector{base::paddedAmount(all), base::paddedAmount(submitted),
                                        base::paddedAmount(all - submitted)}));
    }
    for (const auto& row : payments.second)
      EXPECT_EQ(row[1],
                base::paddedAmount(school.sum(Sql("select * from jfjl where skr='") + row[0] + "' and sftj=''", "je")));
    const Money kept = school.sum("select * from jfjl where sftj=''", "je");
    EXPECT_NE(
        payments.totals.find("前台未提交笔数：" + base::caption(school.count("select * from jfjl where sftj=''")) +
                             " 笔，金额：" + kept.fixed2()),
        std::string::npos);

    const Statistics arrears = arrearsStatistics(school.store, {2026, 9, 7});
    std::size_t open = 0;
    RecordSet groups(school.store, "select bjmc from qfjl group by bjmc");
    store::forEach(groups, [&](RecordSet& group) {
      const Sql of =
          Sql("select * from qfjl where bjmc='") + group.get("bjmc").text() + "'and sbjje<bjje and clfs<>'减免'";
      if (school.count(of) == 0) return;
      const long long who = school.count(Sql("select xh from qfjl where bjmc='") + group.get("bjmc").text() +
                                         "'and sbjje<bjje and clfs<>'减免' group by xh");
      const std::vector<std::string> line{arrears.first.at(open)[0], std::to_string(who),
                                          base::paddedAmount(school.sum(of, "bjje") - school.sum(of, "sbjje"))};
      EXPECT_EQ(arrears.first[open++], line);
    });
    for (const auto& row : arrears.second) {
      const Sql of = Sql("select * from qfjl where bjmc='") + row[0] + "' and month(bjrq)='9'";
      const Money due = school.sum(of, "bjje"), paid = school.sum(of, "sbjje"),
                  waived = school.sum(of + " and clfs='减免'", "sbjje");
      EXPECT_EQ(row[1] + row[2] + row[3] + row[4], base::paddedAmount(due) + base::paddedAmount(paid - waived) +
                                                       base::paddedAmount(waived) + base::paddedAmount(due - paid));
    }
  }
}

TEST(Statistics, OperatorsWithNothingKeptHaveNoLine) {
  CountedSchool school;
  const auto pay = [&](const char* who, const char* day, const char* je, const char* sftj = "") {
    school.add("jfjl", {{"skr", who}, {"jfrq", day}, {"je", je}, {"sftj", sftj}, {"sfxm", "学费"}});
  };
  pay("李强", "2026-9-7", "300");
  pay("李强", "2026-9-5", "12.5");
  pay("王芳", "2026-9-6", "20");
  pay("赵云", "2026-9-6", "20");
  pay("赵云", "2026-9-6", "-20");
  pay("钱进", "2026-9-6", "20", "*");
  const Statistics payments = paymentStatistics(school.store);
  EXPECT_EQ(payments.second, (Rows{{"李强", "   312.50", "2026年9月5日到2026年9月7日发生"},
                                   {"王芳", "      20.00", "2026年9月6日发生"}}));
  EXPECT_EQ(payments.totals,
            "记录总数： 6 笔，总金额：352.50 元，其中  已提交笔数： 1 笔，金额：20.00 元；前台未提交笔数： 5 "
            "笔，金额：332.50 元 ！");
}

// Opens a panel and its statistics bar, as the timers do.
std::unique_ptr<Formzct> console(TestDesk& desk, kit::Action Formzct::*entry, Overview Formzct::*overview) {
  auto s = opened<Formzct>(desk);
  (s.get()->*entry).press();
  s->timer1.tick();
  (s.get()->*overview).zoom.press();
  EXPECT_FALSE((s.get()->*overview).statistics.frame.visible()) << "the notice comes first";
  s->timer3.tick();
  EXPECT_TRUE((s.get()->*overview).statistics.frame.visible());
  return s;
}

TEST(Statistics, ALineOfStudentsOpensItsClass) {
  CountedSchool school;
  for (const char* xb : {"男", "男", "女"})
    school.add("xs", {{"xh", "1"}, {"bjmc", "计算机1班"}, {"xb", xb}, {"xtbh", "1101"}});
  school.add("xs", {{"xh", "9"}, {"bjmc", "别的班"}});
  auto s = console(school, &Formzct::k2, &Formzct::students_overview);
  EXPECT_EQ(s->students_overview.statistics.totals.text(),
            "全校总人数： 4 人，其中 男生人数： 2 人，女生人数： 2 人！");
  StatisticsBar& bar = s->students_overview.statistics;
  long long line = 0;
  while (bar.first.cell(line, 0) != "计算机1班") ++line;
  bar.first.doubleClick(line);
  EXPECT_EQ(s->students_overview.bar.text(), "在校生人数： 3 人，其中男生： 2 人，女生： 1 人！");
  EXPECT_EQ(s->students_overview.list.count(), 3);
  s->students_overview.zoom.press();
  EXPECT_EQ(bar.first.count(), 0);
}

TEST(Statistics, ALineOfPaymentsOpensWhatIsNotSubmitted) {
  CountedSchool school;
  school.add("jfjl", {{"sfxm", "学费"}, {"je", "300"}, {"sftj", ""}, {"skr", "李强"}, {"jfrq", "2026-9-7"}});
  school.add("jfjl", {{"sfxm", "住宿费"}, {"je", "100"}, {"sftj", "*"}, {"skr", "李强"}, {"jfrq", "2026-9-7"}});
  auto s = console(school, &Formzct::k3, &Formzct::payments_overview);
  StatisticsBar& bar = s->payments_overview.statistics;
  const long long dormitory = bar.first.cell(0, 0) == "住宿费" ? 0 : 1;
  school.person.expect(Box::Information, "前台没有该收费项目的未提交记录！    ", "信息提示");
  bar.first.doubleClick(dormitory);
  EXPECT_TRUE(bar.frame.visible());
  bar.second.doubleClick(0);
  EXPECT_EQ(s->payments_overview.bar.text(), "前台收款人李强经办记录总数共： 1 笔，未提交金额：300.00 元 ！");
  EXPECT_FALSE(bar.frame.visible());
}

TEST(Statistics, LinesOfArrearsOpenTheClassAndItsMonth) {
  CountedSchool school;
  const auto owe = [&](const char* day, const char* due, const char* paid, const char* state) {
    school.add("qfjl",
               {{"xh", "1"}, {"bjmc", "计算机1班"}, {"bjrq", day}, {"bjje", due}, {"sbjje", paid}, {"clfs", state}});
  };
  owe("2026-9-1", "100", "0", "");
  owe("2025-9-1", "200", "50", "不足");  // the year does not count
  owe("2026-9-3", "80", "80", "减免");
  owe("2026-10-3", "10", "0", "");
  school.add("qfjl_wjf", {{"xh", "7"}, {"xm", "王小明"}});
  auto s = console(school, &Formzct::k4, &Formzct::arrears_overview);
  Overview& overview = s->arrears_overview;
  EXPECT_EQ(overview.statistics.totals.text(),
            "本月应收欠费总额：380.00 元；已收回：50.00 元；减免：80.00 元；尚欠：250.00 元；收回比例：34%");
  overview.statistics.first.doubleClick(0);
  EXPECT_EQ(overview.bar.text(), "记录个数： 3 条，欠费总额：260.00 元 ！");
  long long line = 0;
  while (overview.statistics.second.cell(line, 0) != "计算机1班") ++line;
  overview.statistics.second.doubleClick(line);
  EXPECT_EQ(overview.bar.text(),
            "本月欠费记录个数： 3 条，欠费总额：380.00 元；已收回欠费：50.00 元；减免欠费：80.00 元；还有 250.00 "
            "元欠费需要催收！");
  EXPECT_EQ(overview.figures[0].text() + " " + overview.figures[1].text() + " " + overview.figures[2].text(),
            "390.00 130.00 80.00")
      << "of the whole book";
  overview.holds = reports::List::Unpaid;
  overview.filter = {};
  s->cd82.press();
  EXPECT_EQ(overview.list.cell(0, 0), "7");
  EXPECT_EQ(overview.list.columns()[5].heading, "  联系电话");
  EXPECT_EQ(overview.figures[0].text(), "");
}

TEST(Clearing, TakesAPanelsTablesBehindTwoWarnings) {
  CountedSchool school;
  const std::string more = "选择“是”继续；否则，点“否”撤销此操作！   \n\n";
  school.add("xs", {{"xh", "1"}});
  school.add("jfjl", {{"xh", "1"}, {"je", "5"}});
  auto s = console(school, &Formzct::k3, &Formzct::payments_overview);
  school.person.answer(true, Box::AskStop, "您确认是要清空系统中所有交费记录吗？   ", "警告")
      .answer(false, Box::AskStop, more + "数据清空后不可恢复！您确认继续吗？    ", "再次警告");
  s->k9.press();
  EXPECT_EQ(school.count("select * from jfjl"), 1);
  school.person.answer(true, Box::AskStop, "您确认是要清空系统中所有交费记录吗？   ", "警告")
      .answer(true, Box::AskStop, more + "数据清空后不可恢复！您确认继续吗？    ", "再次警告");
  school.told("交费记录信息已全部清空 ！        ");
  s->k9.press();
  EXPECT_EQ(school.count("select * from jfjl"), 0);
  EXPECT_EQ(school.count("select * from xs"), 1);
}

}  // namespace
}  // namespace shell
