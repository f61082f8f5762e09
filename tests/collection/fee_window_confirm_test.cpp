#include "collection/receipt_notes.h"
#include "collection/receipt_print.h"
#include "fee_desk.h"
#include "kit/fault.h"

namespace {

using namespace collection;
using namespace collection_tests;

TEST(FeeWindowConfirm, WritesTheFilledLinesAndClosesWithoutPrinting) {
  FeeDesk desk;
  auto cancelled = desk.window();
  cancelled->allLines.toggle();
  cancelled->cancel.press();
  EXPECT_TRUE(cancelled->closed());
  EXPECT_EQ(desk.count("select * from jfjl"), 0);

  auto window = desk.window();
  window->lines[0].paid.type("2400.5");  // confirmed by a key: the field was never left
  window->lines[2].paid.type("0");
  window->lines[7].paid.type("9");  // a line without an item
  window->jfrq.type("2026/08/31");
  window->xq.type(" 2026学年 ");
  desk.expectSaved(false);
  window->confirm.press();
  EXPECT_TRUE(window->closed());
  EXPECT_EQ(desk.dump("jfjl", "lsh|fpbh|xh|sfxm|je|jfrq|xq|skr"),
            "202609070001|10000001|20260001|学费|2400.5|2026-8-31|2026学年|李芳\n"
            "202609070002|10000001|20260001|书本费|0|2026-8-31|2026学年|李芳\n");
}

TEST(FeeWindowConfirm, StopsAtTheFirstFailureAndKeepsTheData) {
  FeeDesk desk;
  auto window = desk.window();
  auto& w = *window;
  // Everything is wrong at first; each step mends the field that was named.
  const std::string tooLong(21, 'x'), twenty = "一二三四五六七八九十一二三四五六七八九十";
  w.xh.type(" "), w.xm.type(tooLong), w.jfrq.type("2026-2-30"), w.jffs.type(std::string(31, 'y'));
  w.lines[0].paid.type("0.001");
  struct {
    kit::Field& field;
    std::string text, title, mended;
    Box box = Box::Stop;
  } const steps[] = {
      {w.xh, "学号不能为空 ！       ", "错误提示", "20260001"},
      {w.xm, "姓名不能超过20个字符 ！       ", "操作提示", twenty},
      {w.jfrq, "日期格式不对,应该为 yyyy-m-d ！       ", "错误提示", "2026-2-28"},
      {w.jffs, "交费方式不能超过30个字符 ！       ", "操作提示", "现金"},
      {w.lines[0].paid, "收费总额不能为零 ！     ", "操作提示", "1", Box::Warning},
  };
  for (const auto& step : steps) {
    if (!w.confirm.enabled()) w.lines[0].paid.type("0.001");  // made 0.00 by each confirmation
    desk.person.expect(step.box, step.text, step.title);
    w.confirm.press();
    EXPECT_EQ(w.focused, &step.field) << step.text;
    step.field.type(step.mended);
  }
  EXPECT_EQ(desk.count("select * from jfjl"), 0);
  desk.expectSaved(false);
  w.confirm.press();
  EXPECT_EQ(desk.dump("jfjl", "xm|je"), twenty + "|1\n");
}

TEST(FeeWindowConfirm, HandsTheReceiptToPrinting) {
  for (const int style : {1, 3}) {
    FeeDesk desk;
    desk.session.receipt_style = style;
    desk.session.arrears_in_remark = true;
    auto window = desk.window();
    window->jfrq.type("2026-9-6");
    window->allLines.toggle();  // the space bar; Enter then takes the money
    desk.expectSaved(true);
    if (style != 3)
      desk.navigator.expect<Formzctsf8>([](Formzctsf8& notes) {
        EXPECT_EQ(notes.lines[0].remark.text(), "") << "remarks belong to arrears";
        notes.lines[0].remark.type("代收");
        notes.print.press();
      });
    desk.navigator.expect<Formzctsf5>([](Formzctsf5& print) { print.timer.tick(); });
    desk.session.custom_form = "江西省学校收费专用收据";
    window->moveOnFrom(window->allLines);
    EXPECT_TRUE(window->closed());
    ASSERT_EQ(desk.printer.shown.size(), 1u);
    std::string page;
    for (const platform::Mark& mark : desk.printer.shown[0].pages[0].marks)
      if (const auto* text = std::get_if<platform::Text>(&mark)) page += text->text + "|";
    for (const char* text : {"10000001|", "20260001|", "王小明|", "计算机1班|", "2026学年下学期|", "现金|", "学费|"})
      EXPECT_NE(page.find(text), std::string::npos) << page;
    EXPECT_EQ(page.find("代收|") == std::string::npos, style == 3) << page;
    EXPECT_EQ(desk.session.print_jffs + "|" + desk.session.print_jfrq, "现金|2026-09-06");
  }
}

// Nobody takes the money twice because a printer does not answer.
TEST(FeeWindowConfirm, ClosesOnceTheRowsAreInWhateverFailsThen) {
  FeeDesk desk;
  auto window = desk.window();
  window->allLines.toggle();
  desk.expectSaved(true);
  desk.navigator.expect<Formzctsf8>([](Formzctsf8&) { throw store::StoreError(store::Fault::Busy, "忙"); });
  desk.person.expect(Box::Stop, "忙\n" + std::string(kit::savedBefore), "错误提示");
  window->confirm.press();
  EXPECT_TRUE(window->closed());
  EXPECT_EQ(desk.count("select * from jfjl"), 3);
}

TEST(FeeWindowConfirm, ArrearsArePaidAndRemarked) {
  FeeDesk desk;
  desk.session.arrears_in_remark = true;
  desk.arrears("20260601001", "学费", {2026, 9, 14}, Money::yuan(500), Money::yuan(120), "不足");
  desk.arrears("20260601002", "住宿费", {2026, 10, 1}, Money::yuan(300));
  desk.arrears("20260601003", "书本费", {2026, 11, 5}, Money::yuan(60));
  desk.arrears("20260601004", "保险费", {2026, 12, 31}, Money::yuan(30));
  auto window = desk.window(false);
  window->lines[0].tick.toggle();
  window->lines[1].paid.type("100");
  window->lines[3].paid.type("31");
  desk.expectSaved(true);
  desk.navigator.expect<Formzctsf8>([](Formzctsf8& notes) {
    const char* const remarks[] = {"补交2026年9月14日欠费，此笔结清！", "补交2026年10月1日欠费，还欠200.00元",
                                   "提示：2026年11月5日应补交60.00元！", "补交2026年12月31日欠费，还欠-1.00元", ""};
    for (std::size_t line = 0; line < 5; ++line) EXPECT_EQ(notes.lines[line].remark.text(), remarks[line]);
  });
  desk.navigator.expect<Formzctsf5>([](Formzctsf5& print) { print.timer.tick(); });
  window->confirm.press();
  ASSERT_EQ(desk.printer.shown.size(), 1u);
  EXPECT_EQ(std::get<platform::Text>(desk.printer.shown[0].pages[0].marks[0]).text, "  收   费   收   据");
  EXPECT_EQ(
      desk.dump("qfjl", "lsh|sbjrq|sbjje|clfs", "lsh"),
      "20260601001|2026-9-7|500|结清\n20260601002|2026-9-7|100|不足\n20260601003||0|\n20260601004|2026-9-7|31|\n");
  EXPECT_EQ(desk.count("select * from jfjl"), 3);
}

// Numbers can repeat, also those of another student, and an item can have been emptied.
TEST(FeeWindowConfirm, PaysTheRowsInSight) {
  FeeDesk desk;
  desk.add("qfjl", {{"lsh", "2026907001"}, {"xh", "1"}, {"bjje", Money::yuan(9)}, {"sbjje", Money()}, {"clfs", ""}});
  desk.arrears("2026907001", "学费", {2026, 9, 14}, Money::yuan(500));
  desk.arrears("2026907001", "", {2026, 10, 1}, Money::yuan(300));
  auto window = desk.window(false);
  window->lines[1].tick.toggle();
  desk.expectSaved(false);
  window->confirm.press();
  EXPECT_EQ(desk.dump("qfjl", "xh|sbjje|clfs"), "1|0|\n20260001|0|\n20260001|300|结清\n");
}

TEST(FeeWindowConfirm, TakesNoMoneyForAStudentWhomAnotherDeskTookAway) {
  for (const char* column : {"bjmc", "xm", "xh", ""}) {  // changed there, or deleted
    FeeDesk desk;
    auto window = desk.window();
    store::RecordSet student(desk.store, "select * from xs");
    if (*column) student.set(column, "20269999"), student.update();
    else student.remove();
    window->lines[0].tick.toggle();
    desk.person.expect(
        Box::Stop,
        "“王小明”的学籍资料已被其他计算机修改或删除，请撤销后重新打开收费窗口！\n本次操作的内容全部没有保存！",
        "错误提示");
    window->confirm.press();
    EXPECT_FALSE(window->closed());
    EXPECT_EQ(desk.count("select * from jfjl"), 0) << column;
  }
}

TEST(FeeWindowConfirm, AShortfallOpensTheArrearsEntryOnce) {
  for (const bool remark : {true, false}) {
    FeeDesk desk;
    desk.settings(" 学费 ", true);
    desk.session.arrears_in_remark = remark;
    auto window = desk.window();
    window->lines[0].paid.type("2000");
    window->jfrq.type("");
    desk.expectArrearsEntry([&](arrears::Formqfcl& entry) {
      EXPECT_EQ(shown({&entry.xh, &entry.xq, &entry.lines[0].sfxm, &entry.lines[0].total}),
                "20260001|2026学年下学期|学费|400.00");
      entry.confirm.press();
    });
    desk.person.expect(Box::Information, "欠费信息录入成功 ！     ", "信息提示");
    desk.person.expect(Box::Stop, "交费日期不能为空 ！       ", "错误提示");
    window->confirm.press();
    EXPECT_EQ(window->notes.receipt_remarks[0], remark ? "本期应交学费2400.00元,欠费400.00元" : "");
    EXPECT_EQ(window->notes.receipt_remarks[1], remark ? "2026年10月7日前需补交400.00元" : "");

    // The refused payment is left. An entry that another screen opens knows nothing of it.
    auto other = support::opened<arrears::Formqfcl>(desk, arrears::ArrearsFor{.current_xq = "2026学年"});
    EXPECT_EQ(shown({&other->xh, &other->lines[0].sfxm}), "|");
    EXPECT_EQ(other->focused, &other->xh);

    window->jfrq.type("2026-9-7");  // the second time it is not shown again
    desk.expectSaved(false);
    window->confirm.press();
    EXPECT_EQ(desk.count("select * from jfjl") + desk.count("select * from qfjl"), 2);
  }
}

// Left by 撤销, by the frame or by Escape, the entry has no part in the receipt.
TEST(FeeWindowConfirm, AnEntryThatWasLeftIsNotRemarked) {
  for (const bool cancels : {true, false}) {
    FeeDesk desk;
    desk.settings("学费", true);
    desk.session.arrears_in_remark = true;
    auto window = desk.window();
    window->lines[0].paid.type("2000");
    desk.expectArrearsEntry([&](arrears::Formqfcl& entry) {
      if (cancels) entry.cancel.press();
    });
    desk.expectSaved(true);
    desk.navigator.expect<Formzctsf8>([](Formzctsf8& notes) { EXPECT_EQ(notes.lines[0].remark.text(), ""); });
    desk.navigator.expect<Formzctsf5>();
    window->confirm.press();
  }
}

TEST(FeeWindowConfirm, WithoutAShortfallItSavesOrDoesNothing) {
  struct {
    std::string item;
    bool on;
    std::string paid;
    long long rows;
  } const cases[] = {
      {"学费", true, "2400", 1}, {"学费", true, "2500", 1}, {"学费", false, "2000", 1}, {"班费", true, "1", 0}};
  for (const auto& one : cases) {
    FeeDesk desk;
    desk.settings(one.item, one.on);
    auto window = desk.window();
    window->lines[0].paid.type(one.paid);
    if (one.rows > 0) desk.expectSaved(false);
    window->confirm.press();
    EXPECT_EQ(desk.count("select * from jfjl"), one.rows) << one.item << one.paid;
    EXPECT_EQ(window->closed(), one.rows > 0);
  }
}

TEST(FeeWindowConfirm, TheArrearsEntryOpensByHandForAnyNumber) {
  FeeDesk desk;
  desk.settings("住宿费", true);
  desk.add("xs", {{"xh", "20260002"}, {"xm", "张三"}, {"bjmc", "计算机1班"}});
  auto window = desk.window();
  window->xh.type(" ");
  EXPECT_FALSE(window->arrearsEntry.enabled());
  window->xh.type("20260002");
  window->arrears_entry_shown = true;
  desk.expectArrearsEntry([&](arrears::Formqfcl& entry) {
    EXPECT_EQ(shown({&entry.xh, &entry.xm, &entry.lines[0].sfxm}), "20260002|张三|住宿费");
  });
  window->arrearsEntry.press();
  EXPECT_FALSE(window->arrears_entry_shown);
}

}  // namespace
