#include "collection/submission.h"

#include "support/test_desk.h"

namespace collection {
namespace {

using kit::Box;
using support::opened;
using support::TestDesk;

struct Settlement : TestDesk {
  explicit Settlement(std::initializer_list<int> rights = {31, 36}) {
    for (const int right : rights) session.Rights[static_cast<std::size_t>(right)] = true;
    session.SessionUser = "李芳";
    session.SchoolName = "澜岳学校";
    pay("202609070002", "2026-9-7", "12.5", "", "李芳");
    pay("202609070001", "2026-9-7", "300", "", "李芳");
    pay("202609060001", "2026-9-6", "80", "*", "李芳");
    pay("202609050001", "2026-9-5", "1000", "", "王芳");
  }
  void pay(const char* lsh, const char* day, const char* je, const char* sftj, const char* skr) {
    add("jfjl",
        {{"lsh", lsh}, {"xh", "1001"}, {"xm", "王小明"}, {"jfrq", day}, {"je", je}, {"sftj", sftj}, {"skr", skr}});
  }
  Settlement& asked(bool submits, bool confirms) {
    person.answer(submits, Box::Ask, "您确认是要提交前台的收费记录到后台数据库中吗？    ", "操作提示");
    if (submits)
      person.answer(confirms, Box::Ask,
                    "您在前台共有： 2 条收费记录；累计收费总额为：312.50 元！ "
                    "\n提交前，您应该先打印出收费汇总报表！您确认继续吗？  "
                    "\n选择“是”提交记录；否则点“否”撤销此操作！ ",
                    "操作提示");
    return *this;
  }
  std::string submitted() { return dump("jfjl", "lsh|sftj"); }
};

TEST(Submission, ListsOwnRecordsOrAllByRight) {
  for (const bool seesAll : {false, true}) {
    Settlement desk({31, seesAll ? 36 : 30});
    auto s = opened<Formzctsf9>(desk);
    const std::string mine = "收款人：李芳，未提交记录数： 2 条，未提交金额：312.50 元";
    EXPECT_EQ(s->summary.text(), mine);
    EXPECT_EQ(s->list.cell(0, 0), "202609070001");
    EXPECT_EQ(s->list.cell(0, 8), base::paddedAmount(base::Money::yuan(300)));
    s->all.press();
    EXPECT_EQ(s->title(), seesAll ? "前台所有未提交收费记录明细" : "未提交收费记录明细");
    EXPECT_EQ(s->summary.text(), seesAll ? "收费前台未提交记录数： 3 条，未提交金额：1312.50 元" : mine);
    s->mine_entry.press();
    EXPECT_EQ(s->summary.text(), mine);
    EXPECT_EQ(s->title(), "未提交收费记录明细");
  }
}

TEST(Submission, SubmitsOwnRecordsEvenWhileAllAreListed) {
  Settlement desk;
  auto s = opened<Formzctsf9>(desk);
  s->all.press();
  const std::string before = desk.submitted();
  for (const bool first : {false, true}) {
    desk.asked(first, false);
    s->submit.press();
    EXPECT_EQ(desk.submitted(), before);
  }
  desk.asked(true, true).person.expect(Box::Information, "记录提交完毕！     ", "信息提示");
  s->submit.press();
  EXPECT_EQ(desk.submitted(), "202609070002|*\n202609070001|*\n202609060001|*\n202609050001|\n");
  EXPECT_EQ(s->list.count(), 0);
  EXPECT_TRUE(s->summary.blank());
  desk.person.expect(Box::Information, "前台不存在您的未提交记录！     ", "信息提示");
  s->submit.press();
}

// What was confirmed is what is submitted: all of it, or nothing and the operator is told.
TEST(Submission, StopsWhenWhatWasConfirmedHasChanged) {
  const std::function<void(store::RecordSet&)> changes[] = {
      [](store::RecordSet& row) { row.removeAll(); }, [](store::RecordSet& row) { row.setAll("sftj", "*"); },
      [](store::RecordSet& row) { row.setAll("skr", "王芳"); }, [](store::RecordSet& row) { row.setAll("je", "1"); }};
  for (const auto& change : changes) {
    Settlement desk;
    auto s = opened<Formzctsf9>(desk);
    desk.asked(true, true)
        .person
        .meanwhile([&] {
          store::RecordSet row(desk.store, "select * from jfjl where lsh='202609070001'");
          change(row);
        })
        .expect(Box::Warning, "您的未提交记录已在其他计算机上改动，没有提交任何记录，请核对后重新提交！     ",
                "操作提示");
    s->submit.press();
    EXPECT_EQ(desk.value("select * from jfjl where lsh='202609070002'", "sftj"), "");
    EXPECT_EQ(s->list.count(), desk.count("select * from jfjl where skr='李芳' and sftj<>'*'"));
  }
}

TEST(Submission, PrintsTheSummaryAndFlagsNothing) {
  Settlement desk;
  desk.add("dy_jfjl", {{"lsh", "old"}});
  auto s = opened<Formzctsf9>(desk);
  const std::string before = desk.submitted();
  s->print.press();
  s->print.press();
  EXPECT_EQ(desk.submitted(), before);
  EXPECT_EQ(desk.dump("dy_jfjl", "lsh|je|skr"), "202609070001|300|李芳\n202609070002|12.5|李芳\n");
  ASSERT_EQ(desk.printer.shown.size(), 2u);
  EXPECT_EQ(desk.printer.shown[1].title, "收费记录汇总报表");

  desk.session.SessionUser = "张敏";
  desk.person.expect(Box::Information, "前台不存在您的未提交记录！      ", "信息提示");
  s->print.press();

  Settlement without({36});
  EXPECT_FALSE(opened<Formzctsf9>(without)->print.enabled());
}

}  // namespace
}  // namespace collection
