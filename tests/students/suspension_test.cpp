#include <algorithm>

#include "students/school.h"
#include "students/student_card.h"
#include "students/suspension_edit.h"
#include "students/suspension_list.h"
#include "students/suspension_query.h"

namespace students {
namespace {

using kit::Box;
using kit::Mode;
using support::opened;

// Two students of one name in different classes.
struct Suspensions : School {
  Suspensions() {
    session.Rights.fill(true);
    student("1003", "张三", accounting, "01001001");
    student("1001", "王小明", computing, "11001001");
    student("1002", "张三", computing, "11001002");
  }
  void suspend(const char* xh, const char* xm, const char* bjmc, const char* fksj = "") {
    add("xxfk",
        {{"xh", xh}, {"xm", xm}, {"bjmc", bjmc}, {"xxsj", base::Date{2026, 3, 2}}, {"fksj", fksj}, {"xtbh", "x"}});
  }
  void suspendThree() {
    suspend("1003", "张三", accounting);
    suspend("1002", "张三", computing, "2026-6-1");
    suspend("1001", "王小明", computing);
  }
  std::string stored() { return dump("xxfk", "xh|xm|bjmc|xxsj|fksj|xtbh"); }
  void query(Formxxfk& s, const char* bjmc, const char* xm) {
    navigator.expect<Formxxfk2>([=](Formxxfk2& query) {
      query.bjmc.type(bjmc);
      query.xm.type(xm);
      query.confirm.press();
    });
    s.records.query->press();
  }
};

std::string listed(const Formxxfk& s) {
  std::string numbers = s.records.count->text() + ":";
  for (long long row = 0; row < s.records.list.count(); ++row) numbers.append(" ").append(s.records.list.cell(row, 0));
  return numbers;
}

TEST(Suspension, TheNoticeOpensTheListAndCloses) {
  Suspensions test;
  auto notice = opened<Formxxfk3>(test);
  test.navigator.expect<Formxxfk>();
  notice->timer.tick();
  EXPECT_TRUE(notice->closed());
}

TEST(Suspension, RightsGateTheButtons) {
  Suspensions test;
  const std::pair<int, std::vector<const char*>> gates[] = {
      {99, {}}, {40, {"resume"}}, {41, {"remove"}}, {42, {"clearAll"}}, {43, {"query", "print", "toSheet"}}};
  for (const auto& [right, opens] : gates) {
    test.session.Rights.fill(false);
    test.session.Rights[static_cast<std::size_t>(right)] = true;
    auto s = opened<Formxxfk>(test);
    for (const kit::Node& node : s->records.actions())
      EXPECT_EQ(node.member->enabled(), node.member->name == "add" || std::ranges::count(opens, node.member->name) == 1)
          << right << node.member->name;
  }
}

TEST(Suspension, AddsARowForTheStudentWhoWasChosen) {
  Suspensions test;
  test.suspend("1002", "张三", computing, "2026-6-1");
  auto s = opened<Formxxfk>(test);
  EXPECT_EQ(readStudentCard(test.store, "1002")->status, "在读");
  test.navigator.expect<Formxxfk1>([&](Formxxfk1& edit) {
    EXPECT_TRUE(edit.what.chosen() == 0 && !edit.what.enabled());
    EXPECT_EQ(edit.day.label() + edit.day.text(), "休学日期2026-9-7");
    edit.bjmc.pick(accounting);
    edit.xm.pick("张三");
    EXPECT_EQ(edit.xh.text(), "1003");
    edit.bjmc.pick(computing);
    EXPECT_EQ(edit.xm.text() + edit.xh.text(), "");
    test.person.expect(Box::Stop, "请先选择班级，再选择该班级中的学生！     ", "操作提示");
    edit.confirm.press();
    edit.xm.pick("张三");
    EXPECT_EQ(edit.xm.choices(), (std::vector<std::string>{"王小明", "张三"}));
    edit.day.type("2026-13-1");
    test.refused("日期格式不正确，应该是 yyyy-m-d 格式！   ");
    edit.confirm.press();
    edit.day.type("2026-09-08");
    edit.confirm.press();
    EXPECT_TRUE(edit.closed());
  });
  s->records.button("add").press();
  EXPECT_EQ(test.stored(), "1002|张三|计算机11001班|2026-3-2|2026-6-1|x\n1002|张三|计算机11001班|2026-9-8||11001002\n");
  EXPECT_EQ(test.value("select * from xxfk where xxsj=#2026-9-8#", "bsh"), "2026-9-7 8:30:05");
  EXPECT_EQ(readStudentCard(test.store, "1002")->status, "休学中");
  EXPECT_EQ(listed(*s), "记录个数： 2: 1002 1002");
}

TEST(Suspension, ResumesAndDeletesTheSelectedRowAmongThoseOfOneStudent) {
  Suspensions test;
  test.suspendThree();
  test.suspend("1002", "张三", computing);
  auto s = opened<Formxxfk>(test);
  const auto press = [&](const char* button) { s->records.button(button).press(); };
  EXPECT_EQ(listed(*s), "记录个数： 4: 1001 1002 1002 1003");
  s->records.list.select(2);
  test.suspend("1000", "李四", computing);  // another desk, above it
  test.navigator.expect<Formxxfk1>([](Formxxfk1& edit) {
    EXPECT_EQ(edit.what.chosen(), 1);
    EXPECT_EQ(edit.day.label() + edit.day.text(), "复课日期2026-9-7");
    EXPECT_EQ(edit.bjmc.text() + edit.xm.text() + edit.xh.text(), "计算机11001班张三1002");
    EXPECT_FALSE(edit.bjmc.enabled() || edit.xm.enabled() || edit.what.enabled());
    edit.day.type("2026/9/9");
    edit.confirm.press();
  });
  press("resume");
  EXPECT_EQ(s->records.list.selected(), 3) << "the same row";
  EXPECT_EQ(s->records.list.cell(3, 4), "2026-9-9");
  EXPECT_EQ(s->records.list.cell(2, 4), "2026-6-1");

  s->records.list.select(2);
  test.person.answer(false, Box::Ask, "您确认是要删除记录吗？      ", "警告")
      .answer(true, Box::Ask, "您确认是要删除记录吗？      ", "警告");
  test.told("记录已删除 ！        ");
  test.navigator.expect<Formxxfk1>([](Formxxfk1& edit) {
    EXPECT_EQ(edit.day.text(), "2026-6-1") << "the row's own day";
    EXPECT_FALSE(edit.day.enabled());
    edit.confirm.press();
    EXPECT_FALSE(edit.closed());
    edit.confirm.press();
  });
  press("remove");
  EXPECT_EQ(test.stored(),
            "1003|张三|会计01001班|2026-3-2||x\n1001|王小明|计算机11001班|2026-3-2||x\n"
            "1002|张三|计算机11001班|2026-3-2|2026-9-9|x\n1000|李四|计算机11001班|2026-3-2||x\n");
}

// Another desk resumes, deletes, renames or moves what this one has open.
TEST(Suspension, WhatAnotherDeskHasChangedIsToldAndLeftAlone) {
  for (const Mode mode : {Mode::Modify, Mode::Delete})
    for (const bool gone : {false, true}) {
      Suspensions test;
      test.suspendThree();
      auto s = test.at<Formxxfk1>(mode, "select * from xxfk order by xh");
      store::RecordSet other(test.store, "select * from xxfk order by xh");
      if (gone) other.remove();
      else kit::writeRow(other, {{"fksj", "2026-9-1"}});
      const std::string before = test.stored();
      if (mode == Mode::Delete) test.person.answer(true, Box::Ask, "您确认是要删除记录吗？      ", "警告");
      gone ? test.gone() : test.conflict("复课日期");
      s->confirm.press();
      EXPECT_EQ(test.stored(), before);
    }
  for (const char* column : {"xh", "xm", "bjmc", ""}) {
    Suspensions test;
    auto s = test.adding<Formxxfk1>();
    s->bjmc.pick(computing);
    s->xm.pick("王小明");
    if (*column) kit::setEach(test.store, "select * from xs where xh='1001'", column, "另");
    else kit::removeEach(test.store, "select * from xs where xh='1001'");
    test.person.expect(Box::Stop, "该生学籍资料已被其他计算机修改，没有保存，请重新选择学生！     ", "操作提示");
    s->confirm.press();
    EXPECT_EQ(test.stored(), "") << column;
  }
}

TEST(Suspension, AQueryFiltersTheListItsPrintAndItsExport) {
  Suspensions test;
  test.suspendThree();
  auto s = opened<Formxxfk>(test);
  const struct {
    const char *bjmc, *xm, *listed;
  } queries[] = {{computing, "张三", "记录个数: 1: 1002"},
                 {computing, "", "记录个数: 2: 1002 1001"},
                 {"", "", "记录个数: 3: 1001 1002 1003"},
                 {"", "张三", "记录个数: 2: 1003 1002"}};
  for (const auto& one : queries) {
    test.query(*s, one.bjmc, one.xm);
    EXPECT_EQ(listed(*s), one.listed);
  }
  test.navigator.expect<Formxxfk2>([](Formxxfk2& query) {
    query.bjmc.drop();
    query.xm.drop();
    EXPECT_EQ(query.bjmc.choices().size(), 2u);
    EXPECT_EQ(query.xm.choices(), (std::vector<std::string>{"王小明", "张三", "张三"}));
    query.xm.type("王小明");
    query.cancel.press();
  });
  s->records.query->press();
  EXPECT_EQ(listed(*s), "记录个数: 2: 1003 1002") << "left without asking";

  test.person.answer(
      true, Box::AskWarning,
      "要打印休学复课记录吗？请确认打印机连接正常、打印纸准备就绪！ \n点“是”继续；否则，点“否”撤销此操作！ ",
      "信息提示");
  s->records.button("print").press();
  EXPECT_EQ(test.dump("dy_xxfk", "xtbh|xh|xm|bjmc|xxsj|fksj"),
            "x|1003|张三|会计01001班|2026-3-2|\nx|1002|张三|计算机11001班|2026-3-2|2026-6-1\n");
  EXPECT_EQ(test.printer.shown.size(), 1u);
  test.person.answer(true, Box::Ask, "此操作将导出学生的休学复课记录为EXCEL格式表，您确认继续吗？      ", "信息提示");
  test.told("“按查询条件导出的学生休学复课记录”已导出，共 2 条记录，文件保存在：\n" +
            (test.desktop.exportFolder() / "按查询条件导出的学生休学复课记录 2026-09-07.xlsx").string());
  s->records.button("toSheet").press();
  ASSERT_EQ(test.sheets.kept.size(), 1u);
  EXPECT_EQ(test.sheets.kept[0].rows.size(), 2u);
  kit::removeEach(test.store, "select * from xxfk");
  test.told("不存在能够打印的休学复课记录！   ");
  s->records.button("print").press();
}

}  // namespace
}  // namespace students
