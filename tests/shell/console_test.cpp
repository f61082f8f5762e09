#include "shell/console.h"

#include "arrears/arrears_delete.h"
#include "arrears/arrears_edit.h"
#include "arrears/arrears_entry.h"
#include "arrears/due_settings.h"
#include "collection/batch_window.h"
#include "collection/fee_window.h"
#include "feesetup/desk_settings.h"
#include "reports/income_statement.h"
#include "reports/print_options.h"
#include "shell/rights.h"
#include "students/class_transfer_window.h"
#include "students/student_edit.h"
#include "students/student_query.h"
#include "students/suspension_list.h"
#include "support/school.h"
#include "upkeep/clearing.h"

namespace shell {
namespace {

using kit::Box;
using reports::List;
using support::opened;

struct Office : support::School {
  explicit Office(std::initializer_list<int> rights = {}) {
    if (rights.size() == 0) session.Rights.fill(true);
    for (const int right : rights) session.Rights[static_cast<std::size_t>(right)] = true;
    session.SessionUser = "李强";
    session.SchoolName = "澜岳学校";
    session.ComputerName = "收费一号机";
    session.SessionStart = "2026-9-7 8:30:05";
    add("czjl", {{"yhxm", "李强"}, {"jsjmc", "收费一号机"}, {"kjsj", "2026-9-7 8:30:05"}, {"gjsj", ""}});
    major("11", "计算机");
    schoolClass("11001", "计算机11001班", "计算机");
    for (const auto& [xh, xm] : {std::pair{"1001", "王小明"}, {"1002", "张三"}, {"1003", "张三"}})
      student(xh, xm, "计算机11001班");
    pay("202609070001", "1001", "2026-9-7", "10000001", "300", "", "李强");
    pay("202609060001", "1001", "2026-9-6", "10000000", "12.5", "*", "李强");
  }
  void pay(const char* lsh, const char* xh, const char* day, const char* receipt, const char* je, const char* sftj,
           const char* skr) {
    add("jfjl", {{"lsh", lsh},
                 {"xh", xh},
                 {"xm", "王小明"},
                 {"jfrq", day},
                 {"fpbh", receipt},
                 {"je", je},
                 {"sftj", sftj},
                 {"skr", skr},
                 {"sfxm", "学费"}});
  }
  void owe(const char* lsh, const char* xh, base::Date day, const char* bjje, const char* clfs = "") {
    add("qfjl", {{"lsh", lsh},
                 {"xh", xh},
                 {"xm", "王小明"},
                 {"sfxm", "学费"},
                 {"bjrq", day},
                 {"bjje", bjje},
                 {"sbjje", 0},
                 {"clfs", clfs}});
  }
};

void find(Formzct& s, const char* number) {
  s.card.xh.type(number);
  s.card.xh.enter();
}

TEST(Console, EscapeShutsWhatIsInFrontAndNeverTheProgram) {
  Office office;
  auto s = opened<Formzct>(office);
  find(*s, "1001");
  s->k3.press();
  s->timer1.tick();
  ASSERT_TRUE(s->payments_overview.frame.visible());
  for (const kit::Member* gone :
       {static_cast<kit::Member*>(&s->payments_overview.frame), static_cast<kit::Member*>(&s->classes.frame)}) {
    s->focused = nullptr;
    EXPECT_TRUE(s->escaped());
    EXPECT_FALSE(gone->visible());
    EXPECT_EQ(s->focused, &s->card.xh);
    if (gone == &s->payments_overview.frame) s->class_strip.press();
  }
  s->arrears.due.press();
  EXPECT_TRUE(s->escaped());
  EXPECT_FALSE(s->arrears.holdsDue());
  EXPECT_TRUE(s->escaped());
  EXPECT_FALSE(s->closed());
}

TEST(Console, RightsSettleTheMenuOnce) {
  Office office{Income, StudentQuery};
  auto s = opened<Formzct>(office);
  EXPECT_TRUE(s->cd11.enabled());
  EXPECT_FALSE(s->cd21.enabled() || s->cd31.enabled() || s->cd33.enabled() || s->cd34.enabled() || s->cd35.enabled() ||
               s->cd14.enabled());
  EXPECT_TRUE(s->cd32.enabled());
  EXPECT_TRUE(s->students_overview.button("打开").enabled());
  EXPECT_FALSE(s->students_overview.button("添加").enabled());
  EXPECT_FALSE(s->payments_overview.button("打开").enabled());
  for (kit::Action* entry : s->paymentsPopUp()) EXPECT_FALSE(entry && entry->enabled());  // right 31 is missing
  find(*s, "1001");
  EXPECT_EQ(s->card.xm.text(), "");
  for (kit::Action* button : {&s->k1, &s->k5}) button->press();  // nothing opens
}

TEST(Console, TheMenuLeadsToStatementSuspensionsAndClearing) {
  Office office;
  auto s = opened<Formzct>(office);
  office.navigator.expect<reports::Formkh1>([](reports::Formkh1& worker) { worker.timer.tick(); });
  office.navigator.expect<reports::Formkh>();  // the worker was told to open the statement, whatever was edited before
  s->cd11.press();
  office.navigator.expect<students::Formxxfk3>();
  s->cd72.press();
  office.navigator.expect<upkeep::Formcsh3>();
  s->cd34.press();
}

TEST(Console, FindsByNumberAndShowsCardAndPayments) {
  Office office;
  office.configure({{"sfctsz", 0}});
  auto s = opened<Formzct>(office);
  find(*s, " 1001 ");
  EXPECT_EQ(s->card.xm.text(), "王小明");
  EXPECT_EQ(s->card.frame.title(), "王小明同学学籍资料信息");
  EXPECT_EQ(s->payments.list.cell(0, 8), "    12.50");
  EXPECT_EQ(s->payments.list.cell(1, 0), "202609070001");
  EXPECT_EQ(s->payments.bar.text(),
            "学生：王小明 从2026年9月6日到2026年9月7日共有交费记录数： 2 条，累计交费总额：312.50 元");
  s->cd55.press();
  EXPECT_EQ(s->payments.bar.text(), "新交费记录： 1 条，累计金额：300.00 元");
  s->card.xm.click();
  EXPECT_EQ(s->payments.list.count(), 0);
  EXPECT_EQ(s->card.frame.title(), "学籍资料信息");
}

TEST(Console, ABatchBorrowsTheNumberOfTheStudentOnTheCard) {
  Office office;
  office.configure({{"sfctsz", 0}});
  auto s = opened<Formzct>(office);
  find(*s, "1001");
  office.navigator.expect<collection::Formzctsf7>([](collection::Formzctsf7& batch) { batch.classes.doubleClick(0); });
  s->k20.press();
  EXPECT_EQ(s->current_xh, "1001");
  EXPECT_EQ(s->card.xm.text(), "王小明");
  office.navigator.expect<students::Formtb>();
  s->cd14.press();
}

TEST(Console, SearchMessages) {
  Office office;
  office.configure({{"sfctsz", 1}});
  auto s = opened<Formzct>(office);
  const auto byName = [&](const char* text) {
    s->card.xm.type(text);
    s->card.xm.enter();
  };
  office.person.expect(Box::Stop, "学号不能为空，请输入正确的学号！    ", "操作错误")
      .expect(Box::Stop, "学号应该是数字，请重新输入！    ", "错误提示")
      .expect(Box::Information, "找不到相关记录，请检查学号输入是否正确！    ", "信息提示")
      .expect(Box::Stop, "姓名不能为空 ！    ", "操作错误")
      .expect(Box::Information, "该生相关记录不存在，请检查姓名输入是否正确！   ", "信息提示")
      .expect(Box::Information, "学生姓名不唯一，请您用学号调用该生的相关记录！    ", "操作提示");
  find(*s, " ");
  find(*s, "abc");
  find(*s, "9999");
  byName(" ");
  byName("无名");
  byName("张三");
  office.navigator.expect<collection::Formzctsf4>();
  byName("王小明");
  EXPECT_EQ(s->current_xh, "1001");
}

TEST(Console, ClassPanelLeadsToTheFeeWindowThroughTheTimer) {
  Office office;
  office.configure({{"sfctsz", 1}});
  auto s = opened<Formzct>(office);
  EXPECT_FALSE(s->classes.frame.visible());
  s->class_strip.press();
  s->classes.tree.click("k1.1");
  EXPECT_EQ(s->classes.students.count(), 3);
  s->classes.students.doubleClick(0);
  EXPECT_FALSE(s->classes.frame.visible());
  EXPECT_EQ(s->ConsolePanel, kit::Panel::FeeWindow);
  office.navigator.expect<collection::Formzctsf4>();
  s->timer1.tick();
  EXPECT_EQ(s->ConsolePanel, kit::Panel::None);
  s->classes.opensFeeWindow.set(false);
  EXPECT_FALSE(office.session.open_fee_window);
}

TEST(Console, OverviewsFillOnlyWhenTheSettingSaysSo) {
  for (const bool loads : {false, true}) {
    Office office;
    office.configure({{"jfjljz", loads}});
    auto s = opened<Formzct>(office);
    s->k3.press();
    EXPECT_FALSE(s->payments_overview.frame.visible());
    s->timer1.tick();
    EXPECT_TRUE(s->payments_overview.frame.visible());
    EXPECT_EQ(s->payments_overview.list.count(), loads ? 2 : 0);
    EXPECT_EQ(s->payments_overview.bar.text(), loads ? "记录总数： 2 笔，总金额：312.50 元！" : "");
    s->k2.press();
    s->timer1.tick();
    EXPECT_FALSE(s->payments_overview.frame.visible());
    EXPECT_EQ(s->students_overview.list.count(), loads ? 3 : 0);
    s->students_overview.button("返回").press();
    EXPECT_FALSE(s->students_overview.frame.visible());
    EXPECT_EQ(s->ConsolePanel, kit::Panel::None);
  }
}

TEST(Console, TheStatusLineTellsWhatTheQueryFound) {
  Office office;
  auto s = opened<Formzct>(office);
  s->k2.press();
  s->timer1.tick();
  for (const bool there : {true, false}) {
    office.navigator.expect<students::Formzctxscx1>([](students::Formzctxscx1& query) { query.single.press(); });
    office.navigator.expect<students::Formzctxscx>([&](students::Formzctxscx& query) {
      query.way.pick("按姓名查询");
      query.value.type(there ? "王小明" : "无此人");
      if (!there) office.told("相关记录不存在 ！      ");
      query.confirm.press();
      EXPECT_EQ(query.closed(), there);
    });
    s->students_overview.button("打开").press();
    s->timer4.tick();
    EXPECT_EQ(s->ready.text(), there ? "按姓名查询：条件是 [ 王小明 ] ，符合条件的记录有： 1 条！" : "");
    EXPECT_EQ(s->students_overview.list.count(), 1);
  }
}

TEST(Console, TheChainOfThreeRightsIsNotTiedToThePanel) {
  const char* refusal = "请您先请示授权再进行此操作！      ";
  Office first{StudentQuery};
  auto s = opened<Formzct>(first);
  s->k2.press();
  s->timer1.tick();
  first.navigator.expect<reports::Formzctxsdy>();
  first.person.expect(Box::Information, refusal, "权限越界");
  s->k7.press();

  Office third{StudentQuery, ArrearsQuery};
  auto t = opened<Formzct>(third);
  t->k4.press();
  t->timer1.tick();
  third.person.expect(Box::Information, refusal, "权限越界");
  t->k8.press();
}

TEST(Console, ExportsTheListInFrontUnderItsFilter) {
  Office office;
  office.owe("1", "1001", {2026, 9, 1}, "300");
  office.add("qfjl_wjf", {{"xh", "1001"}});
  office.add("qfjl_je", {{"xh", "1001"}});
  auto s = opened<Formzct>(office);
  s->students_overview.filter = {" where xm='张三'"};
  const struct {
    kit::Panel panel;
    List holds;
    const char *object, *title;
    std::size_t rows;
  } exports[] = {{kit::Panel::Students, List::Arrears, "学生的学籍资料", "按查询条件导出的学生学籍资料", 2},
                 {kit::Panel::Payments, List::Unpaid, "交费记录", "学员交费记录", 2},
                 {kit::Panel::Arrears, List::Arrears, "学生的欠费记录", "学员欠费记录", 1},
                 {kit::Panel::Arrears, List::Unpaid, "未交费学生名单", "未交费学生名单导出", 1},
                 {kit::Panel::Arrears, List::Comparison, "应交与实交对比结果", "应交与实交对比结果导出", 1}};
  for (const auto& one : exports) {
    s->ConsolePanel = one.panel;
    s->arrears_overview.holds = one.holds;
    const std::string title = one.title, file = (office.desktop.exportFolder() / (title + " 2026-09-07.xlsx")).string();
    office.person
        .answer(true, Box::Ask, std::string("此操作将导出") + one.object + "为EXCEL格式表，您确认继续吗？      ",
                "信息提示")
        .expect(Box::Information,
                "“" + title + "”已导出，共 " + std::to_string(one.rows) + " 条记录，文件保存在：\n" + file, "信息提示");
    s->k8.press();
    EXPECT_EQ(office.sheets.kept.back().rows.size(), one.rows);
  }
}

TEST(Console, DeletesOnlyOwnUnsubmittedPayments) {
  Office office;
  office.configure({{"sfctsz", 0}});
  office.pay("202609070002", "1001", "2026-9-7", "10000001", "5", "", "李强");
  office.pay("202609070003", "1001", "2026-9-8", "10000002", "7", "", "王芳");
  auto s = opened<Formzct>(office);
  find(*s, "1001");
  office.person.expect(Box::Information, "这是一条已提交记录，前台不能删除它！    ", "信息提示")
      .expect(Box::Information, "这是操作员王芳经办的收费记录，您在前台不能删除它！   ", "信息提示")
      .answer(false, Box::AskStop, "您确认是要删除选定记录吗？      ", "警告")
      .answer(true, Box::AskStop, "您确认是要删除选定记录吗？      ", "警告")
      .expect(Box::Information, "选定记录已删除！       ", "信息提示");
  s->payments.list.select(0);
  s->cd571.press();
  s->payments.list.select(3);
  s->cd571.press();
  s->payments.list.select(1);
  s->cd571.press();
  EXPECT_EQ(office.count("select * from jfjl"), 4);
  s->cd572.press();  // the whole receipt
  EXPECT_EQ(office.dump("jfjl", "fpbh"), "10000000\n10000002\n");
}

TEST(Console, DueArrearsTakeThePlaceOfThePayments) {
  Office office;
  office.configure({{"sfctsz", 0}, {"qfts", 7}});
  auto s = opened<Formzct>(office);
  s->arrears.due.press();
  EXPECT_EQ(s->arrears.bar.text(), "没有到期的欠费记录！");
  s->arrears.back.press();
  EXPECT_TRUE(s->payments.frame.visible());

  office.owe("1", "1001", {2026, 9, 13}, "100");  // the sixth day from today
  office.owe("2", "1001", {2026, 9, 14}, "200");
  office.owe("3", "1002", {2025, 1, 1}, "12.5");  // overdue
  office.owe("4", "1002", {2026, 9, 1}, "50", "减免");
  find(*s, "1001");
  EXPECT_EQ(s->arrears.list.count(), 2);
  s->cd63.press();
  EXPECT_EQ(s->arrears.frame.title(), "今日到期应交欠费信息");
  EXPECT_FALSE(s->payments.frame.visible());
  EXPECT_EQ(s->arrears.list.cell(0, 0), "3");
  EXPECT_EQ(s->arrears.list.cell(0, 5), "    12.50");
  EXPECT_EQ(s->arrears.bar.text(), "欠费到期应交记录数： 2 条，总额为：112.50元 ！");
  s->cd64.press();
  EXPECT_EQ(s->arrears.frame.title(), "王小明同学欠费记录");
  EXPECT_TRUE(s->payments.frame.visible());
  EXPECT_EQ(s->arrears.list.count(), 2);
  EXPECT_EQ(s->arrears.bar.text(), "");

  s->arrears.due.press();
  s->class_strip.press();  // the panel of classes brings the student's list back
  EXPECT_FALSE(s->arrears.holdsDue());
  s->arrears.due.press();
  s->card.xm.click();
  EXPECT_EQ(s->arrears.frame.title(), "学生欠费记录");
  EXPECT_TRUE(s->payments.frame.visible());

  Office stranger{StudentQuery};
  auto t = opened<Formzct>(stranger);
  stranger.person.expect(Box::Information, "只有收款人或超级管理员可以进行此操作！     ", "信息提示");
  t->arrears.due.press();
  EXPECT_TRUE(t->payments.frame.visible());
}

TEST(Console, WaivesFromTheCardAndFromTheOverview) {
  Office office;
  office.configure({{"sfctsz", 0}, {"jfjljz", true}});
  office.owe("1", "1001", {2026, 9, 13}, "100");
  office.owe("2", "1001", {2026, 9, 14}, "200");
  auto s = opened<Formzct>(office);
  find(*s, "1001");
  s->cd61.press();  // nothing is selected
  s->arrears.list.select(0);
  office.person.answer(true, Box::Ask, "您确认是要减免此笔欠费吗？     ", "操作提示")
      .expect(Box::Information, "减免操作成功！     ", "信息提示")
      .expect(Box::Information, "您操作的记录中存在减免或结清记录，请单笔进行操作！     ", "操作提示")
      .answer(true, Box::Ask, "您确认是要减免此笔欠费吗？     ", "操作提示")
      .expect(Box::Information, "减免操作成功！     ", "信息提示");
  s->cd61.press();
  EXPECT_EQ(s->arrears.list.count(), 1);
  EXPECT_EQ(s->arrears.list.cell(0, 0), "2");
  s->k4.press();
  s->timer1.tick();
  s->arrears_overview.list.select(1);
  s->cd92.press();
  s->cd91.press();
  EXPECT_EQ(s->arrears_overview.list.cell(1, 10), "减免");
  EXPECT_EQ(office.dump("qfjl", "lsh|sbjje|clfs"), "1|100|减免\n2|200|减免\n");

  Office clerk{Collect, ArrearsQuery};
  auto t = opened<Formzct>(clerk);
  clerk.configure({{"sfctsz", 0}});
  clerk.owe("1", "1001", {2026, 9, 1}, "300");
  find(*t, "1001");
  EXPECT_TRUE(t->cd66.enabled());
  for (kit::Action* entry : {&t->cd61, &t->cd62, &t->cd91, &t->cd92, &t->cd571, &t->cd572})
    EXPECT_FALSE(entry->enabled()) << entry->name;
}

TEST(Console, EditsArrearsFromTheOverview) {
  Office office;
  office.configure({{"sfctsz", 0}, {"jfjljz", true}});
  office.owe("1", "1001", {2026, 9, 13}, "100");
  auto s = opened<Formzct>(office);
  find(*s, "1002");
  s->k4.press();
  s->timer1.tick();
  Overview& overview = s->arrears_overview;
  overview.button("修改").press();  // nothing is selected
  overview.button("删除").press();
  office.navigator.expect<arrears::Formqf>([](arrears::Formqf& edit) { EXPECT_EQ(edit.lsh.text(), "1"); });
  overview.list.doubleClick(0);
  overview.list.select(0);
  office.navigator.expect<arrears::Formqfcl5>();
  overview.button("删除").press();

  office.navigator.expect<arrears::Formqfcl>();  // left without a row: all rows stay in sight
  overview.button("添加").press();
  EXPECT_TRUE(overview.filter.where.empty());
  office.navigator.expect<arrears::Formqfcl>([](arrears::Formqfcl& entry) {
    EXPECT_EQ(entry.xh.text(), "");
    entry.xh.type("1001");
    entry.xh.enter();
    entry.lines[0].sfxm.type("书本费");
    entry.lines[0].total.type("20");
    entry.xq.set("2026学年");
    entry.confirm.press();
  });
  office.told("欠费信息录入成功 ！     ");
  overview.button("添加").press();
  EXPECT_EQ(overview.list.count(), 1);
  EXPECT_EQ(overview.list.cell(0, 3), "书本费");
  EXPECT_EQ(s->current_xh, "1002");  // the card's student

  overview.filter = {};
  office.navigator.expect<arrears::Formqfcl2>([&](arrears::Formqfcl2&) {
    office.owe("9", "1001", {2026, 9, 13}, "100");
  });
  overview.button("导入").press();
  EXPECT_EQ(overview.list.count(), 3) << "what an import has added is in sight";

  overview.button("返回").press();
  EXPECT_EQ(office.count("select * from qfjl where bsh='收费一号机'"), 0);
  Office clerk{Collect, ArrearsQuery};
  clerk.configure({{"jfjljz", true}});
  clerk.owe("1", "1001", {2026, 9, 13}, "100");
  auto t = opened<Formzct>(clerk);
  t->k4.press();
  t->timer1.tick();
  t->arrears_overview.list.doubleClick(0);  // without the right to modify it opens nothing
}

TEST(Console, SaysGoodbyeInItsOrder) {
  const struct {
    const char* width;
    std::vector<std::pair<int, int>> modes;
  } cases[] = {{"1024\n", {}}, {"1366\n", {{1024, 768}}}, {"800\n", {{800, 600}}}, {"1280\n", {{1280, 800}}}};
  const std::string question =
      "您确认是要退出本系统吗？   \n选择“是”将关闭本窗口\n或者选择“否”撤消此操作！                     ";
  for (const auto& c : cases) {
    Office office;
    auto s = opened<Formzct>(office);
    platform::writeFile(office.desktop.programFolder() / "Screen.txt", c.width);
    office.person.answer(false, Box::Ask, question, "确认退出");
    EXPECT_FALSE(s->mayClose());
    EXPECT_EQ(office.count("select * from czjl where gjsj=''"), 1);
    office.person.answer(true, Box::Ask, question, "确认退出")
        .answer(true, Box::Ask, "退出之前是否备份数据库？        ", "备份提示");
    s->k10.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(office.dump("czjl", "gjsj"), "2026-9-7 8:30:05\n");
    EXPECT_EQ(office.desktop.modes, c.modes);
    EXPECT_EQ(office.desktop.started.size(), 1u);
  }
}

TEST(Console, TellsASessionThatDiedFromOneThatLives) {
  Office office;
  office.add("czjl", {{"yhxm", "甲"}, {"jsjmc", "b"}, {"kjsj", "2026-9-7 7:00:00"}, {"gjsj", ""}, {"jsjbs", "2"}});
  const auto seen = [](const char* moment) { return base::DateTime::parse(moment).value(); };
  // A clock that is ten minutes slow, one that is ten minutes fast.
  office.add("czjl", {{"yhxm", "乙"}, {"kjsj", "2026-9-7 8:10:00"}, {"gjsj", ""}, {"hdsj", seen("2026-9-7 8:20:00")}});
  office.add("czjl", {{"yhxm", "丙"}, {"kjsj", "2026-9-7 8:20:00"}, {"gjsj", ""}, {"hdsj", seen("2026-9-7 8:40:00")}});
  auto s = opened<Formzct>(office);
  const auto dead = [&] {
    std::string names;
    for (long long row = 0; row < s->sharing.list.count(); ++row)
      if (s->sharing.list.cell(row, 2).starts_with("已中断 2026-9-7")) names += s->sharing.list.cell(row, 0);
    return names;
  };
  const auto after = [&](long long seconds) {
    office.clock.moment = office.clock.moment.plusSeconds(seconds);
    s->run([&] {
      s->timer2.tick();
      EXPECT_EQ(office.store.saved(), office.desk.savedBefore) << "the person's own event saved nothing by it";
    });
  };
  EXPECT_EQ(dead(), "甲乙");
  auto slow = store::RecordSet(office.store, "select * from czjl where yhxm='乙'");
  slow.set("hdsj", seen("2026-9-7 8:20:30"));
  slow.update();
  after(30);
  EXPECT_EQ(dead(), "甲") << "what changes lives, whatever its clock says";
  EXPECT_EQ(office.value("select * from czjl where yhxm='李强'", "hdsj"), "2026-9-7 8:30:35");
  after(30);
  EXPECT_EQ(office.value("select * from czjl where yhxm='李强'", "hdsj"), "2026-9-7 8:30:35") << "once a minute";
  after(180);
  EXPECT_EQ(dead(), "甲乙丙");
  EXPECT_EQ(office.value("select * from czjl where yhxm='李强'", "hdsj"), "2026-9-7 8:34:05");
  after(16 * 3600);
  EXPECT_EQ(s->third.text(), "今天是 2026年9月8日") << "the day follows midnight";
}

}  // namespace
}  // namespace shell
