// The arrears' queries to the letter; the two computed lists against a statement for every student.
#include "arrears/arrears_query.h"

#include <random>

#include "support/test_desk.h"

namespace arrears {
namespace {

using base::Money;
using kit::Box;
using store::RecordSet;
using store::Sql;
using support::opened;
using support::TestDesk;

TEST(ArrearsQuery, ChainsWithTheOddSignBehindAnother) {
  struct Case {
    std::function<void(Formqfcl11&)> fill;
    const char* where;
    long long found;
  };
  const Case cases[] = {
      {[](auto&) {}, "", 2},
      {[](auto& s) {
         s.qfrq.day.type("2026-9-1");
         s.qfrq.how.pick(">=");
       },
       " where qfrq>=#2026-9-1#", 2},
      {[](auto& s) {
         s.xq.type("2026学年");
         s.qfrq.day.type("2026-9-2");
         s.qfrq.how.pick(">=");
         s.bjrq.day.type("2026-12-1");
         s.bjrq.how.pick("<=");
         s.clfs.type("不足");
       },
       " where xq='2026学年' and qfrq=>#2026-9-2# and bjrq<=#2026-12-1# and clfs='不足'", 1},
      {[](auto& s) {
         s.qfrq.day.type("2026-9-7");
         s.sbjrq.day.type("2026-9-8");
         s.sbjrq.how.pick(">=");
       },
       " where qfrq=#2026-9-7# and sbjrq=>#2026-9-8#", 1},
      {[](auto& s) { s.period.choose(1); }, "  where qfrq=#2026-9-7#", 1},
      {[](auto& s) { s.period.choose(2); }, "  where month(qfrq)='9'", 2},
      {[](auto& s) { s.period.choose(3); }, "  where year(qfrq)='2026'", 2},
      {[](auto& s) { s.key.type("王"); },
       "  where xm like  '%王%' or xq like  '%王%' or xh like  '%王%'  or qfrq like  '%王%' or bjmc like  '%王%' or "
       "clfs like  '%王%' or "
       "sfxm like  '%王%' or bjrq like  '%王%' or sbjrq like  '%王%' or skr like  '%王%'",
       2},
  };
  for (const Case& one : cases) {
    TestDesk desk;
    desk.add("qfjl", {{"lsh", "1"},
                      {"xm", "王小明"},
                      {"xq", "2026学年"},
                      {"qfrq", "2026-9-7"},
                      {"bjrq", "2026-10-7"},
                      {"sbjrq", "2026-9-9"},
                      {"clfs", "不足"}});
    desk.add("qfjl", {{"lsh", "2"},
                      {"xm", "王芳"},
                      {"xq", "2025学年"},
                      {"qfrq", "2026-9-1"},
                      {"bjrq", "2027-1-1"},
                      {"sbjrq", ""},
                      {"clfs", ""}});
    auto s = opened<Formqfcl11>(desk);
    one.fill(*s);
    (s->key.blank() ? s->confirm : s->search).press();
    ASSERT_TRUE(s->closed() && s->answer) << one.where;
    EXPECT_EQ(s->answer->where.text(), one.where);
    EXPECT_EQ(desk.count(Sql("select * from qfjl ") + s->answer->where), one.found) << one.where;
  }
}

TEST(ArrearsQuery, TheOlderScreenGivesAChainToo) {
  TestDesk desk;
  desk.add("zymcb", {{"zybh", "11"}, {"zymc", "计算机"}});
  desk.add("qfjl", {{"lsh", "1"}, {"xtbh", "11001001"}, {"qfrq", "2026-9-7"}, {"clfs", "不足"}});
  auto s = opened<Formqfcl1>(desk);
  s->scope.choose(1);
  desk.person.expect(Box::Stop, "请选择专业！     ", "错误提示");
  s->confirm.press();
  s->of.type("计算机");
  s->clfs.type("不足");
  s->confirm.press();
  ASSERT_TRUE(s->answer);
  EXPECT_EQ(s->answer->where.text(),
            " where left(xtbh,2)='11' and qfrq>=#2026-9-7# and qfrq<=#2026-9-7# and clfs='不足'");
}

struct MixedSchool : TestDesk {
  explicit MixedSchool(unsigned seed) {
    std::mt19937 random(seed);
    const auto any = [&](std::vector<const char*> values) { return values[random() % values.size()]; };
    for (int i = 0; i < 40; ++i)
      add("xs", {{"xh", "a" + std::to_string(i)},
                 {"xm", "学生" + std::to_string(i)},
                 {"bjmc", any({"一班", "二班"})},
                 {"sjhm", "138"}});
    add("xs", {{"xh", ""}, {"xm", "没有学号"}, {"bjmc", "一班"}});
    add("jfjl", {{"xq", "上"}, {"sfxm", "学费"}, {"jfrq", "2026-9-1"}, {"je", "7"}});  // and no number either
    for (int i = 0; i < 90; ++i)
      add("jfjl", {{"xh", (random() % 2 ? "a" : "A") + std::to_string(random() % 40)},
                   {"xq", any({"上", "下"})},
                   {"sfxm", any({"学费", "书费"})},
                   {"jfrq", any({"2026-9-1", "2026-9-5", "2026-10-1", ""})},
                   {"je", any({"100", "50.5", "-20"})}});
  }
};

TEST(Comparison, AgreesWithAStatementForEveryStudent) {
  const PaymentQuestion questions[] = {{},
                                       {"一班", "", "", {}, {}},
                                       {"", "上", "", {}, {}},
                                       {"二班", "上", "学费", {}, {}},
                                       {"", "", "书费", base::Date{2026, 9, 1}, base::Date{2026, 9, 30}}};
  for (unsigned seed = 1; seed <= 3; ++seed)
    for (const PaymentQuestion& question : questions) {
      MixedSchool school(seed);
      std::string unpaid, less, more;
      RecordSet students(school.store, question.bjmc.empty()
                                           ? Sql("select * from xs")
                                           : Sql("select * from xs where bjmc='") + question.bjmc + "'");
      store::forEach(students, [&](RecordSet& student) {
        const std::string xh = student.get("xh").text();
        Sql filter = Sql(" where xh='") + xh + "'";
        if (!question.xq.empty()) filter += Sql(" and xq='") + question.xq + "'";
        if (!question.sfxm.empty()) filter += Sql(" and sfxm='") + question.sfxm + "'";
        if (question.from)
          filter += Sql(" and jfrq>=#") + question.from->plain() + "# and jfrq<=#" + question.to->plain() + "#";
        Money sum;
        RecordSet paid(school.store, Sql("select * from jfjl ") + filter);
        if (paid.empty()) unpaid += xh + "\n";
        store::forEach(paid, [&](RecordSet& row) { sum += row.get("je").money(); });
        const std::string line = xh + "|" + sum.plain() + "|" + (Money::yuan(100) - sum).plain() + "\n";
        if (sum < Money::yuan(100)) less += line;
        if (sum > Money::yuan(100)) more += line;
      });
      const base::DateTime now{{2026, 9, 7}, 8, 0, 0};
      EXPECT_FALSE(listUnpaid(school.store, {"三班", "", "", {}, {}}, now, {}));  // nobody to ask about: emptied
      EXPECT_EQ(school.count("select * from qfjl_wjf"), 0);
      listUnpaid(school.store, question, now, {});
      EXPECT_EQ(school.dump("qfjl_wjf", "xh"), unpaid);
      listByPaid(school.store, question, Money::yuan(100), PaidAs::Less, now, {});
      EXPECT_EQ(school.dump("qfjl_je", "xh|sjje|ce"), less);
      listByPaid(school.store, question, Money::yuan(100), PaidAs::More, now, {});
      EXPECT_EQ(school.dump("qfjl_je", "xh|sjje|ce"), more);
    }
}

// Enter in the last field of a tab does what the tab is for, not what another one is.
TEST(ArrearsQuery, EnterEndsTheTabThatItIsIn) {
  MixedSchool school(1);
  auto s = opened<Formqfcl11>(school);
  school.person.expect(Box::Information, "相关记录不存在，请检查条件设置是否正确！    ", "信息提示");
  s->sbjrq.day.enter();
  s->unpaid.bjmc.type("没有这个班");
  school.person.expect(Box::Information, "不存在需要查询的学生信息！    ", "信息提示");
  s->unpaid.to.enter();
  school.person.expect(Box::Stop, "应交金额不能为空！ ", "错误提示");
  s->due.enter();
  s->due.type("5000");
  school.person.expect(Box::Information, "信息搜索完毕！ ", "信息提示");
  s->due.enter();
  EXPECT_EQ(s->answer->arrears_list_mode, reports::List::Comparison);
}

TEST(Comparison, TellsThePeriodAndItsResult) {
  MixedSchool school(1);
  auto s = opened<Formqfcl11>(school);
  const auto refused = [&](const char* text) {
    school.person.expect(Box::Stop, text, "错误提示");
    s->searchUnpaid.press();
  };
  s->unpaid.from.type("2026-9-9");
  refused("交费日期是一个区间值！ ");
  s->unpaid.to.type("2026-9-1");
  refused("起始日期不能大于截止日期！ ");
  s->unpaid.to.type("2026-9-10");
  school.person.expect(Box::Information, "信息搜索完毕！    ", "信息提示");
  s->searchUnpaid.press();
  EXPECT_TRUE(s->closed());
  ASSERT_TRUE(s->answer);
  EXPECT_EQ(s->answer->arrears_list_mode, reports::List::Unpaid);
  EXPECT_EQ(school.value("select * from qfjl_wjf", "xqrq") + school.value("select * from qfjl_wjf", "sfxm"),
            "从 2026-9-9 到 2026-9-10无任何交费记录");

  auto again = opened<Formqfcl11>(school);
  school.person.expect(Box::Stop, "应交金额不能为空！ ", "错误提示");
  again->compare.press();
  again->due.type("5000");
  again->wanted.choose(2);
  school.person.expect(Box::Information, "不存在相匹配记录！ ", "信息提示");
  again->compare.press();
  again->wanted.choose(0);
  again->compared.xq.type("上");
  school.person.expect(Box::Information, "信息搜索完毕！ ", "信息提示");
  again->compare.press();
  ASSERT_TRUE(again->answer);
  EXPECT_EQ(again->answer->arrears_list_mode, reports::List::Comparison);
  EXPECT_EQ(school.count("select * from qfjl_je where yjje=5000 and xqrq='上'"), 41);
}

}  // namespace
}  // namespace arrears
