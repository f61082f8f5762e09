#include "collection/receipt_notes.h"
#include "collection/receipt_print.h"
#include "fee_desk.h"

namespace {

using namespace collection;
using namespace collection_tests;
using support::opened;

TEST(FeeWindowConfirm, WritesTheFilledLinesAndClosesWithoutPrinting) {
  FeeDesk desk;
  auto cancelled = opened<Formzctsf4>(desk);
  cancelled->allLines.toggle();
  cancelled->cancel.press();
  EXPECT_TRUE(cancelled->closed());
  EXPECT_EQ(desk.count("select * from jfjl"), 0);

  auto window = opened<Formzctsf4>(desk);
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
  EXPECT_EQ(desk.session.print_fpbh, "");
}

TEST(FeeWindowConfirm, StopsAtTheFirstFailureAndKeepsTheData) {
  FeeDesk desk;
  auto window = opened<Formzctsf4>(desk);
  auto& w = *window;
  // Everything is wrong at first; each step mends the field that was named.
  const std::string tooLong(21, 'x'), longMethod(31, 'y'), twenty = "一二三四五六七八九十一二三四五六七八九十";
  w.xh.type(tooLong), w.xm.type(tooLong), w.xq.type(tooLong), w.jfrq.type(" "), w.jffs.type("");
  w.lines[0].paid.type("0.001");
  struct {
    kit::Field& field;
    std::string text, title, mended;
    Box box = Box::Stop;
  } const steps[] = {
      {w.xh, "学号不能超过20个字符 ！       ", "操作提示", " "},
      {w.xh, "学号不能为空 ！       ", "错误提示", "20260001"},
      {w.xm, "姓名不能超过20个字符 ！       ", "操作提示", ""},
      {w.xm, "姓名不能为空 ！       ", "错误提示", twenty},
      {w.xq, "学年学期不能超过20个字符 ！       ", "操作提示", ""},
      {w.xq, "学年学期不能为空 ！       ", "错误提示", "2026"},
      {w.jfrq, "交费日期不能为空 ！       ", "错误提示", "2026-2-30"},
      {w.jfrq, "日期格式不对,应该为 yyyy-m-d ！       ", "错误提示", "2026-2-28"},
      {w.jffs, "交费方式不能为空 ！       ", "错误提示", longMethod},
      {w.jffs, "交费方式不能超过30个字符 ！       ", "操作提示", "现金"},
      {w.lines[0].paid, "收费总额不能为零 ！     ", "操作提示", "1", Box::Warning},
  };
  for (const auto& step : steps) {
    if (!w.confirm.enabled()) w.lines[0].paid.type("0.001");  // settled to 0.00 by each confirmation
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
    auto window = opened<Formzctsf4>(desk);
    window->jfrq.type("2026-9-6");
    window->allLines.toggle();  // the space bar; Enter then takes the money
    desk.expectSaved(true);
    if (style != 3) desk.navigator.expect<Formzctsf8>();
    desk.navigator.expect<Formzctsf5>([&](Formzctsf5&) {
      const kit::Session& s = desk.session;
      EXPECT_EQ(s.print_fpbh + s.print_xh + s.print_xm + s.print_bjmc + s.print_xq + s.print_jffs + s.print_jfrq,
                "1000000120260001王小明计算机1班2026学年下学期现金2026-09-06");
    });
    window->moveOnFrom(window->allLines);
    EXPECT_TRUE(window->closed());
  }
}

TEST(FeeWindowConfirm, ArrearsAreSettledAndRemarked) {
  FeeDesk desk;
  desk.session.arrears_in_remark = true;
  desk.arrears("20260601001", "学费", {2026, 9, 14}, Money::yuan(500), Money::yuan(120), "不足");
  desk.arrears("20260601002", "住宿费", {2026, 10, 1}, Money::yuan(300));
  desk.arrears("20260601003", "书本费", {2026, 11, 5}, Money::yuan(60));
  desk.arrears("20260601004", "保险费", {2026, 12, 31}, Money::yuan(30));
  auto window = opened<Formzctsf4>(desk);
  window->arrearsMode.toggle();
  window->lines[0].tick.toggle();
  window->lines[1].paid.type("100");
  window->lines[3].paid.type("31");
  desk.expectSaved(true);
  desk.navigator.expect<Formzctsf8>([&](Formzctsf8&) {
    const auto& remarks = desk.session.receipt_remarks;
    EXPECT_EQ(remarks[0], "补交2026年9月14日欠费，此笔结清！");
    EXPECT_EQ(remarks[1], "补交2026年10月1日欠费，还欠200.00元");
    EXPECT_EQ(remarks[2], "提示：2026年11月5日应补交60.00元！");
    EXPECT_EQ(remarks[3] + remarks[4], "补交2026年12月31日欠费，还欠-1.00元");
  });
  desk.navigator.expect<Formzctsf5>([&](Formzctsf5&) { EXPECT_FALSE(desk.session.fee_normal_mode); });
  window->confirm.press();
  EXPECT_TRUE(desk.session.fee_normal_mode);
  EXPECT_EQ(
      desk.dump("qfjl", "lsh|sbjrq|sbjje|clfs", "lsh"),
      "20260601001|2026-9-7|500|结清\n20260601002|2026-9-7|100|不足\n20260601003||0|\n20260601004|2026-9-7|31|\n");
  EXPECT_EQ(desk.count("select * from jfjl"), 3);
}

TEST(FeeWindowConfirm, AShortfallOpensTheArrearsEntryOnce) {
  for (const bool remark : {true, false}) {
    FeeDesk desk;
    desk.settings(" 学费 ", true);
    desk.session.arrears_in_remark = remark;
    auto window = opened<Formzctsf4>(desk);
    window->lines[0].paid.type("2000");
    window->jfrq.type("");
    desk.session.receipt_remarks[0] = "?";
    desk.expectArrearsEntry([&](arrears::Formqfcl& entry) {
      const kit::Session& s = desk.session;
      EXPECT_EQ(s.receipt_remarks[0], remark ? "本期应交学费2400.00元,欠费400.00元" : "");
      EXPECT_EQ(s.current_xh + s.current_xq, "202600012026学年下学期");
      EXPECT_EQ(s.fee_lines[1].item + s.fee_lines[1].paid.plain() + s.fee_lines[9].item, "住宿费0");
      EXPECT_EQ(entry.lines[0].sfxm.text() + entry.lines[0].total.text(), "学费400.00");
      desk.session.current_xh = "20260002";  // looked up there; the window goes on with its own student
    });
    desk.person.expect(Box::Stop, "交费日期不能为空 ！       ", "错误提示");
    window->confirm.press();
    EXPECT_TRUE(desk.session.arrears_entry_shown);
    EXPECT_EQ(desk.session.current_xh, "20260001");

    window->jfrq.type("2026-9-7");  // the second time it is not shown again
    desk.expectSaved(false);
    window->confirm.press();
    EXPECT_EQ(desk.count("select * from jfjl"), 1);
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
    auto window = opened<Formzctsf4>(desk);
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
  auto window = opened<Formzctsf4>(desk);
  window->xh.type(" ");
  EXPECT_FALSE(window->arrearsEntry.enabled());
  window->xh.type("20260002");
  desk.session.arrears_entry_shown = true;
  desk.expectArrearsEntry([&](arrears::Formqfcl& entry) {
    EXPECT_EQ(desk.session.current_xh, "20260002");
    EXPECT_EQ(entry.lines[0].sfxm.text(), "住宿费");
  });
  window->arrearsEntry.press();
  EXPECT_FALSE(desk.session.arrears_entry_shown);
}

}  // namespace
