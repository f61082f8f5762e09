#include <algorithm>

#include "students/school.h"
#include "students/suspension_edit.h"
#include "students/suspension_list.h"
#include "students/suspension_query.h"

namespace students {
namespace {

using kit::Box;
using support::opened;

struct Suspensions : School {
  Suspensions() {
    session.Rights.fill(true);
    for (const auto& [xh, xm] : {std::pair("1001", "王小明"), std::pair("1002", "张三")})
      add("xs", {{"xh", xh}, {"xm", xm}, {"bjmc", "计算机11001班"}, {"xtbh", "11001001"}});
    add("xs", {{"xh", "1003"}, {"xm", "张三"}, {"bjmc", "会计01001班"}, {"xtbh", "01001001"}});
  }
  void suspend(const char* xh, const char* xm, const char* bjmc, const char* fksj = "") {
    add("xxfk",
        {{"xh", xh}, {"xm", xm}, {"bjmc", bjmc}, {"xxsj", base::Date{2026, 3, 2}}, {"fksj", fksj}, {"xtbh", "x"}});
  }
  void suspendThree() {
    suspend("1003", "张三", "会计01001班");
    suspend("1002", "张三", "计算机11001班", "2026-6-1");
    suspend("1001", "王小明", "计算机11001班");
  }
  std::string stored() { return dump("xxfk", "xh|xm|bjmc|xxsj|fksj"); }
};

TEST(Suspension, TheNoticeOpensTheListAndCloses) {
  Suspensions test;
  auto notice = opened<Formxxfk3>(test);
  EXPECT_EQ(notice->text.text(), "正在加载相关设置，请稍等...");
  test.navigator.expect<Formxxfk>();
  notice->timer.tick();
  EXPECT_TRUE(notice->closed());
}

TEST(Suspension, RightsSettleTheButtons) {
  Suspensions test;
  const struct {
    int right;
    std::vector<kit::Action Formxxfk::*> opens;
  } gates[] = {{-1, {}},
               {40, {&Formxxfk::resume}},
               {41, {&Formxxfk::remove}},
               {42, {&Formxxfk::clearAll}},
               {43, {&Formxxfk::query, &Formxxfk::print, &Formxxfk::toSheet}}};
  for (const auto& gate : gates) {
    test.session.Rights.fill(false);
    if (gate.right >= 0) test.session.Rights[static_cast<std::size_t>(gate.right)] = true;
    auto s = opened<Formxxfk>(test);
    EXPECT_TRUE(s->add.enabled() && s->back.enabled());
    for (auto action : {&Formxxfk::resume, &Formxxfk::remove, &Formxxfk::clearAll, &Formxxfk::query, &Formxxfk::print,
                        &Formxxfk::toSheet})
      EXPECT_EQ((s.get()->*action).enabled(), std::ranges::count(gate.opens, action) == 1) << gate.right;
  }
}

TEST(Suspension, AddsARowForTheStudentWhoWasChosen) {
  Suspensions test;
  test.suspend("1002", "张三", "计算机11001班");
  auto s = opened<Formxxfk>(test);
  test.navigator.expect<Formxxfk1>([&](Formxxfk1& edit) {
    EXPECT_TRUE(edit.what.chosen() == 0 && !edit.what.enabled());
    EXPECT_EQ(edit.day.label() + edit.day.text(), "休学日期2026-9-7");
    test.person.expect(Box::Stop, "请先选择班级，再选择该班级中的学生！     ", "操作提示");
    edit.confirm.press();
    edit.bjmc.pick("会计01001班");
    EXPECT_EQ(edit.bjmc.choices(), (std::vector<std::string>{"会计01001班", "计算机11001班"}));
    edit.bjmc.pick("计算机11001班");
    EXPECT_EQ(edit.xm.choices(), (std::vector<std::string>{"王小明", "张三"}));
    edit.xm.pick("张三");
    EXPECT_EQ(edit.xh.text(), "1002");
    edit.day.type("2026-13-1");
    test.person.expect(Box::Stop, "日期格式不正确，应该是 yyyy-m-d 格式！   ", "错误提示");
    edit.confirm.press();
    edit.day.type("2026-09-08");
    edit.confirm.press();
    EXPECT_TRUE(edit.closed());
  });
  s->add.press();
  EXPECT_EQ(test.stored(), "1002|张三|计算机11001班|2026-3-2|\n1002|张三|计算机11001班|2026-9-8|\n");
  EXPECT_EQ(test.value("select * from xxfk where xxsj=#2026-9-8#", "bsh"), "2026-9-7 8:30:05");
  EXPECT_EQ(test.value("select * from xxfk where xxsj=#2026-9-8#", "xtbh"), "11001001");
  EXPECT_EQ(s->count.text(), "记录个数： 2");
}

TEST(Suspension, ResumesAndDeletesTheSelectedRow) {
  Suspensions test;
  auto s = opened<Formxxfk>(test);
  test.person.expect(Box::Information, "不存在需要复课的休学记录！  ", "信息提示")
      .expect(Box::Information, "不存在需要删除的记录！  ", "信息提示");
  s->resume.press();
  s->remove.press();

  test.suspendThree();
  s = opened<Formxxfk>(test);
  s->resume.press();  // none selected: nothing opens
  s->suspensions.select(1);
  test.navigator.expect<Formxxfk1>([](Formxxfk1& edit) {
    EXPECT_EQ(edit.what.chosen(), 1);
    EXPECT_EQ(edit.day.label() + "|" + edit.bjmc.text() + "|" + edit.xm.text() + "|" + edit.xh.text(),
              "复课日期|计算机11001班|张三|1002");
    EXPECT_FALSE(edit.bjmc.enabled() || edit.xm.enabled());
    edit.confirm.press();
  });
  s->resume.press();
  EXPECT_EQ(s->suspensions.cell(1, 4), "2026-9-7");  // over the day that stood there

  test.person.answer(false, Box::Ask, "您确认是要删除记录吗？      ", "警告")
      .answer(true, Box::Ask, "您确认是要删除记录吗？      ", "警告")
      .expect(Box::Information, "记录已删除 ！        ", "信息提示");
  test.navigator.expect<Formxxfk1>([](Formxxfk1& edit) {
    edit.confirm.press();
    EXPECT_FALSE(edit.closed());
    edit.confirm.press();
  });
  s->remove.press();
  EXPECT_EQ(test.stored(), "1003|张三|会计01001班|2026-3-2|\n1001|王小明|计算机11001班|2026-3-2|\n");
}

TEST(Suspension, QueriesFilterTheListAndItsPrint) {
  Suspensions test;
  test.suspendThree();
  auto s = opened<Formxxfk>(test);
  const struct {
    const char* bjmc;
    const char* xm;
    const char* where;
    const char* found;
  } queries[] = {{"计算机11001班", "张三", " where bjmc='计算机11001班' and xm='张三'", "记录个数: 1"},
                 {"计算机11001班", "", " where bjmc='计算机11001班'", "记录个数: 2"},
                 {"", "", "", "记录个数： 3"},
                 {"", "张三", " where xm='张三'", "记录个数: 2"}};
  for (const auto& one : queries) {
    test.navigator.expect<Formxxfk2>([&](Formxxfk2& query) {
      query.bjmc.type(one.bjmc);
      query.xm.type(one.xm);
      query.confirm.press();
    });
    s->query.press();
    EXPECT_EQ(s->filter_.where.text(), one.where);
    EXPECT_EQ(s->count.text(), one.found);
  }
  test.navigator.expect<Formxxfk2>([](Formxxfk2& query) { query.cancel.press(); });
  s->query.press();
  EXPECT_EQ(s->count.text(), "记录个数: 2");

  test.person.answer(
      true, Box::AskWarning,
      "要打印休学复课记录吗？请确认打印机连接正常、打印纸准备就绪！ \n点“是”继续；否则，点“否”撤销此操作！ ",
      "信息提示");
  s->print.press();
  EXPECT_EQ(test.dump("dy_xxfk", "xtbh|xh|xm|bjmc|xxsj|fksj"),
            "x|1003|张三|会计01001班|2026-3-2|\nx|1002|张三|计算机11001班|2026-3-2|2026-6-1\n");
  EXPECT_EQ(test.printer.shown.size(), 1u);
}

TEST(Suspension, ClearsAllRowsWhateverTheFilter) {
  Suspensions test;
  test.suspendThree();
  auto s = opened<Formxxfk>(test);
  test.navigator.expect<Formxxfk2>([](Formxxfk2& query) {
    query.xm.type("王小明");
    query.confirm.press();
  });
  s->query.press();
  const auto answered = [&](bool yes) {
    test.person.answer(true, Box::AskStop, "您确认是要清空系统中所有的休学复课记录吗？   ", "警告")
        .answer(yes, Box::AskStop,
                "休学复课记录清空后不可恢复！您确认继续吗？    \n\n选择“是”继续；否则，点“否”撤销此操作！   ",
                "再次警告");
  };
  answered(false);
  s->clearAll.press();
  EXPECT_EQ(test.count("select * from xxfk"), 3);
  answered(true);
  test.person.expect(Box::Information, "休学复课记录已全部清空 ！        ", "信息提示");
  s->clearAll.press();
  EXPECT_EQ(test.count("select * from xxfk"), 0);
  answered(true);
  test.person.expect(Box::Information, "不存在需要清空的记录！  ", "信息提示");
  s->clearAll.press();
  test.person.expect(Box::Information, "不存在能够打印的休学复课记录！   ", "信息提示");
  s->print.press();
}

}  // namespace
}  // namespace students
