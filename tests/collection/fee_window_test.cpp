#include "collection/fee_window.h"

#include "collection/fee_window_wait.h"
#include "fee_desk.h"

namespace {

using namespace collection;
using namespace collection_tests;
using support::opened;

TEST(FeeWindow, OpensOnTheStudentReadyToTick) {
  FeeDesk desk;
  auto window = desk.window();
  auto& w = *window;
  EXPECT_EQ(shown({&w.xh, &w.xm, &w.rxrq, &w.rxxs, &w.bjmc, &w.jfrq, &w.jffs, &w.xq}),
            "20260001|王小明|2026-9-1|统招|计算机1班|2026-9-7|现金|2026学年下学期");
  EXPECT_EQ(w.xtbh, "0101001");
  EXPECT_EQ(w.focused, &w.allLines);
  EXPECT_FALSE(w.confirm.enabled());

  desk.add("jfjl", {{"fpbh", "10000009"}, {"xq", "2025学年上学期"}, {"jffs", "刷卡"}});
  desk.add("jfjl", {{"fpbh", "10000002"}, {"xq", "2024学年上学期"}, {"jffs", "现金"}});
  auto next = desk.window();
  EXPECT_EQ(next->xq.text(), "2025学年上学期");
  next->jffs.pick("刷卡");
  EXPECT_EQ(next->jffs.text(), "刷卡");
}

TEST(FeeWindow, LoadsTheStandardsInFourWays) {
  struct {
    bool byClass, onlyItems;
    std::string lines, total;
  } const cases[] = {
      {true, true, "1|学费|2400.00|o|\n2|保险费|0.00|o|\n3|学费|9.00|o|\n", "2409.00"},
      {true, false, "1|学费|2400.00|o|\n2|保险费||-|\n3|军训费||-|\n", "2400.00"},
      {false, true, "1|军训费|80.00|o|\n2|学费|1800.00|o|\n", "1880.00"},
      {false, false, "1|学费|1800.00|o|\n2|保险费||-|\n3|军训费|80.00|o|\n", "1880.00"},
  };
  for (const auto& one : cases) {
    FeeDesk desk(false);
    desk.standard("02", "保险费", {});
    desk.standard("01", "学费", Money::yuan(2400));
    desk.standard("03", "学费", Money::yuan(9));  // the first of an item counts where the items lead
    desk.standard("01", "学费", Money::yuan(7), "会计1班");
    desk.add("sfbzbrxxs", {{"rxxs", "统招"}, {"sfxmmc", "军训费"}, {"je", Money::yuan(80)}});
    desk.add("sfbzbrxxs", {{"rxxs", "统招"}, {"sfxmmc", "学费"}, {"je", Money::yuan(1800)}});
    desk.item("03", "军训费"), desk.item("01", "学费"), desk.item("02", "保险费");
    desk.session.standard_basis_class = one.byClass;
    desk.session.only_items = one.onlyItems;
    auto window = desk.window();
    EXPECT_EQ(shown(*window) + window->totalDue.text(), one.lines + one.total);
  }
}

TEST(FeeWindow, HasTenLinesAtMostAndNoneAtLeast) {
  FeeDesk desk(false);
  auto empty = desk.window();
  EXPECT_EQ(shown(*empty) + empty->totalDue.text(), "");
  EXPECT_FALSE(empty->allLines.enabled());
  for (int i = 12; i >= 1; --i) desk.standard(std::to_string(100 + i), "项目" + std::to_string(i), Money::yuan(1));
  auto full = desk.window();
  EXPECT_EQ(full->lines[9].sfxm.text() + full->totalDue.text(), "项目1010.00");
}

TEST(FeeWindow, TicksCopyTheDueAmounts) {
  FeeDesk desk;
  desk.session.only_items = false;
  desk.item("00", "补考费"), desk.item("01", "学费"), desk.item("02", "住宿费");
  auto window = desk.window();
  auto& w = *window;
  w.lines[1].tick.toggle();
  EXPECT_EQ(w.lines[1].paid.text() + " " + w.totalPaid.text(), "2400.00 2400.00");
  EXPECT_TRUE(w.confirm.enabled());
  w.lines[1].tick.toggle();
  EXPECT_EQ(w.lines[1].paid.text() + " " + w.totalPaid.text(), " 0.00");
  EXPECT_FALSE(w.confirm.enabled());

  w.lines[0].paid.type("50");  // has no due amount: the all-lines box takes it away, and stays on
  w.allLines.toggle();
  EXPECT_EQ(shown(w), "1|补考费||-|\n2|学费|2400.00|x|2400.00\n3|住宿费|600.00|x|600.00\n");
  EXPECT_EQ(w.allLines.caption() + w.totalPaid.text(), "全部移去3000.00");
  w.allLines.toggle();
  EXPECT_EQ(shown(w), "1|补考费||-|\n2|学费|2400.00|o|\n3|住宿费|600.00|o|\n");
  EXPECT_EQ(w.allLines.caption(), "全部选择");

  w.allLines.toggle();
  w.lines[1].paid.type("");
  EXPECT_TRUE(w.allLines.on());
  w.lines[2].paid.type("");  // the last amount gone: the box goes too
  EXPECT_FALSE(w.allLines.on() || w.lines[1].tick.on());
}

TEST(FeeWindow, ColoursAndSettlesATypedAmount) {
  FeeDesk desk;
  auto window = desk.window();
  auto& paid = window->lines[0].paid;
  paid.type("2400.01");
  EXPECT_EQ(paid.colour(), (kit::Colour{255, 0, 255}));
  paid.type("2400");
  EXPECT_EQ(paid.colour(), (kit::Colour{0, 0, 255}));
  paid.enter();
  EXPECT_EQ(paid.text(), "2400.00");
  EXPECT_EQ(window->focused, &window->lines[1].paid);

  paid.type("12元");
  EXPECT_EQ(window->totalPaid.text(), "12.00");
  desk.person.expect(Box::Stop, "金额应该是数字，请输入数字 ！    ", "错误提示");
  paid.enter();
  EXPECT_EQ(paid.text(), "");
  EXPECT_EQ(window->focused, &paid);

  paid.type("99999999999999999999");  // more than money can hold
  EXPECT_TRUE(window->confirm.enabled());
  desk.person.expect(Box::Stop, "金额应该是数字，请输入数字 ！    ", "错误提示");
  window->confirm.press();
  EXPECT_EQ(desk.count("select * from jfjl"), 0);

  window->lines[5].paid.type("30");  // a line without an item keeps nothing
  window->lines[5].paid.leave();
  paid.type("  ");
  paid.leave();
  EXPECT_EQ(window->lines[5].paid.text() + paid.text(), "");
}

TEST(FeeWindow, ArrearsModeShowsTheOpenRowsAndBack) {
  FeeDesk desk;
  desk.session.due_rows_ticked = true;
  desk.arrears("20260601003", "住宿费", {2026, 9, 15}, Money::yuan(300));                          // in eight days
  desk.arrears("20260601001", "学费", {2026, 9, 14}, Money::yuan(500), Money::yuan(120), "不足");  // in seven
  desk.arrears("20260601002", "书本费", {2026, 5, 1}, Money::yuan(60), {}, "减免");
  desk.arrears("20260601004", "书本费", {2026, 5, 1}, Money::yuan(60), Money::yuan(60), "结清");
  auto window = desk.window();
  auto& w = *window;
  const std::string standards = shown(w), normalHeading = w.modeHeading.text();
  w.jffs.type("刷卡");
  w.allLines.toggle();

  w.arrearsMode.toggle();
  EXPECT_EQ(shown(w), "2026-9-14|学费|380.00|x|380.00\n2026-9-15|住宿费|300.00|o|\n");
  EXPECT_EQ(shown({&w.totalDue, &w.totalPaid, &w.jffs, &w.xm}), "680.00|380.00|现金|王小明");
  EXPECT_EQ(w.arrearsMode.caption() + "|" + w.allLines.caption(), "正常收费|全部选择");
  EXPECT_EQ(w.difference.text() + "|" + w.already.text(), "300.00|本学期尚未交费；欠费 2 笔，共 680.00 元");
  EXPECT_EQ(shown(*desk.window()), standards) << "another window starts in the normal mode";
  EXPECT_EQ(shown(*desk.window(false)), shown(w));
  EXPECT_NE(w.modeHeading.text(), normalHeading);

  w.arrearsMode.toggle();
  EXPECT_EQ(shown(w) + w.arrearsMode.caption() + w.modeHeading.text(), standards + "加载欠费" + normalHeading);
  EXPECT_FALSE(w.confirm.enabled());
}

TEST(FeeWindow, WaitsUntilItsTimerTicks) {
  FeeDesk desk;
  auto wait = opened<Formzctsf6>(desk, FeeWindowFor{"20260001"});
  desk.navigator.expect<Formzctsf4>([&](Formzctsf4& window) {
    EXPECT_TRUE(wait->closed());
    EXPECT_EQ(window.xm.text(), "王小明");
  });
  wait->timer.tick();
}

}  // namespace
