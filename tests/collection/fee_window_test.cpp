#include "collection/fee_window.h"

#include "collection/fee_window_wait.h"
#include "fee_desk.h"

namespace {

using namespace collection;
using namespace collection_tests;
using base::Money;
using support::opened;

constexpr kit::Colour blue{0, 0, 255}, magenta{255, 0, 255};

TEST(FeeWindow, OpensOnTheStudentReadyToTick) {
  FeeDesk desk;
  desk.threeStandards();
  desk.session.receipt_remarks[4] = "旧备注";
  auto window = opened<Formzctsf4>(desk);
  EXPECT_EQ(window->xh.text() + window->xm.text() + window->rxrq.text() + window->rxxs.text() + window->bjmc.text() +
                window->xtbh,
            "20260001王小明2026-9-1统招计算机1班0101001");
  EXPECT_EQ(window->jfrq.text() + window->jffs.text() + window->xq.text(), "2026-9-7现金2026学年下学期");
  EXPECT_EQ(desk.session.receipt_remarks[4], "");
  EXPECT_EQ(window->focused, &window->allLines);
  EXPECT_FALSE(window->confirm.enabled());
}

TEST(FeeWindow, OffersTheTermOfTheLastReceiptAndTheMethodsUsed) {
  FeeDesk desk;
  desk.add("jfjl", {{"fpbh", "10000009"}, {"xq", "2025学年上学期"}, {"jffs", "刷卡"}});
  desk.add("jfjl", {{"fpbh", "10000002"}, {"xq", "2024学年上学期"}, {"jffs", "现金"}});
  auto window = opened<Formzctsf4>(desk);
  EXPECT_EQ(window->xq.text(), "2025学年上学期");
  window->jffs.pick("刷卡");
  EXPECT_EQ(window->jffs.text(), "刷卡");
}

struct LoadCase {
  std::string name;
  bool byClass, onlyItems;
  std::string lines, total;
};

TEST(FeeWindow, LoadsTheStandardsInFourWays) {
  const LoadCase cases[] = {
      {"class, only its items", true, true, "1|学费|2400.00|o|\n2|保险费|0.00|o|\n3|学费|9.00|o|\n", "2409.00"},
      {"class, all items", true, false, "1|学费|2400.00|o|\n2|保险费||-|\n3|军训费||-|\n", "2400.00"},
      {"form, only its items", false, true, "1|军训费|80.00|o|\n2|学费|1800.00|o|\n", "1880.00"},
      {"form, all items", false, false, "1|学费|1800.00|o|\n2|保险费||-|\n3|军训费|80.00|o|\n", "1880.00"},
  };
  for (const LoadCase& one : cases) {
    SCOPED_TRACE(one.name);
    FeeDesk desk;
    desk.standard("02", "保险费", {});
    desk.standard("01", "学费", Money::yuan(2400));
    desk.standard("03", "学费", Money::yuan(9));  // the first of an item counts where items lead
    desk.standard("01", "学费", Money::yuan(7), "会计1班");
    desk.add("sfbzbrxxs", {{"rxxs", "统招"}, {"sfxmmc", "军训费"}, {"je", Money::yuan(80)}});
    desk.add("sfbzbrxxs", {{"rxxs", "统招"}, {"sfxmmc", "学费"}, {"je", Money::yuan(1800)}});
    for (const auto& [bh, mc] : {std::pair{"03", "军训费"}, {"01", "学费"}, {"02", "保险费"}})
      desk.add("sfxmb", {{"sfxmbh", bh}, {"sfxmmc", mc}});
    desk.session.standard_basis_class = one.byClass;
    desk.session.only_items = one.onlyItems;
    auto window = opened<Formzctsf4>(desk);
    EXPECT_EQ(shown(*window), one.lines);
    EXPECT_EQ(window->totalDue.text(), one.total);
  }
}

TEST(FeeWindow, DropsWhatIsBeyondTheTenthLine) {
  FeeDesk desk;
  for (int i = 12; i >= 1; --i) desk.standard(std::to_string(100 + i), "项目" + std::to_string(i), Money::yuan(1));
  auto window = opened<Formzctsf4>(desk);
  EXPECT_EQ(window->lines[9].sfxm.text(), "项目10");
  EXPECT_EQ(window->totalDue.text(), "10.00");
}

TEST(FeeWindow, WithoutStandardsAllLinesStayEmpty) {
  FeeDesk desk;
  auto window = opened<Formzctsf4>(desk);
  EXPECT_EQ(shown(*window) + window->totalDue.text(), "");
  EXPECT_FALSE(window->allLines.enabled());
  EXPECT_EQ(window->focused, &window->xh);
}

TEST(FeeWindow, TicksCopyTheDueAmounts) {
  FeeDesk desk;
  desk.session.only_items = false;
  desk.standard("01", "学费", Money::yuan(2400));
  desk.standard("02", "住宿费", Money::yuan(600));
  for (const auto& [bh, mc] : {std::pair{"00", "补考费"}, {"01", "学费"}, {"02", "住宿费"}})
    desk.add("sfxmb", {{"sfxmbh", bh}, {"sfxmmc", mc}});
  auto window = opened<Formzctsf4>(desk);
  auto& lines = window->lines;
  lines[1].tick.toggle();
  EXPECT_EQ(lines[1].paid.text() + " " + window->totalPaid.text(), "2400.00 2400.00");
  EXPECT_TRUE(window->confirm.enabled());
  lines[1].tick.toggle();
  EXPECT_EQ(lines[1].paid.text() + " " + window->totalPaid.text(), " 0.00");
  EXPECT_FALSE(window->confirm.enabled());

  lines[0].paid.type("50");  // no due amount: taken away by the all-lines box, which stays on
  window->allLines.toggle();
  EXPECT_EQ(shown(*window), "1|补考费||-|\n2|学费|2400.00|x|2400.00\n3|住宿费|600.00|x|600.00\n");
  EXPECT_EQ(window->allLines.caption() + window->totalPaid.text(), "全部移去3000.00");
  window->allLines.toggle();
  EXPECT_EQ(shown(*window), "1|补考费||-|\n2|学费|2400.00|o|\n3|住宿费|600.00|o|\n");
  EXPECT_EQ(window->allLines.caption(), "全部选择");

  window->allLines.toggle();
  lines[1].paid.type("");
  EXPECT_TRUE(window->allLines.on());
  lines[2].paid.type("");  // the last amount gone: the box goes too
  EXPECT_FALSE(window->allLines.on());
  EXPECT_FALSE(lines[1].tick.on());
}

TEST(FeeWindow, ColoursAndSettlesATypedAmount) {
  FeeDesk desk;
  desk.standard("01", "学费", Money::yuan(2400));
  auto window = opened<Formzctsf4>(desk);
  auto& paid = window->lines[0].paid;
  paid.type("2400.01");
  EXPECT_EQ(paid.colour(), magenta);
  paid.type("2400");
  EXPECT_EQ(paid.colour(), blue);
  paid.type("2400.005");
  paid.enter();
  EXPECT_EQ(paid.text(), "2400.01");
  EXPECT_EQ(window->focused, &window->lines[1].paid);

  paid.type("12元");
  EXPECT_EQ(window->totalPaid.text(), "12.00");
  desk.person.expect(Box::Stop, "金额应该是数字，请输入数字 ！    ", "错误提示");
  paid.leave();
  EXPECT_EQ(paid.text(), "");
  EXPECT_EQ(window->focused, &paid);

  window->lines[5].paid.type("30");  // a line without an item keeps nothing
  window->lines[5].paid.leave();
  paid.type("  ");
  paid.leave();
  EXPECT_EQ(window->lines[5].paid.text() + paid.text(), "");
}

TEST(FeeWindow, ArrearsModeShowsTheOpenRowsAndBack) {
  FeeDesk desk;
  desk.threeStandards();
  desk.session.due_rows_ticked = true;
  desk.arrears("20260601003", "住宿费", {2026, 9, 15}, Money::yuan(300));                          // eight days away
  desk.arrears("20260601001", "学费", {2026, 9, 14}, Money::yuan(500), Money::yuan(120), "不足");  // seven
  desk.arrears("20260601002", "书本费", {2026, 5, 1}, Money::yuan(60), {}, "减免");
  desk.arrears("20260601004", "书本费", {2026, 5, 1}, Money::yuan(60), Money::yuan(60), "结清");
  auto window = opened<Formzctsf4>(desk);
  const std::string standards = shown(*window);
  const auto normalColour = window->modeHeading.colour();
  window->xq.type("2027学年上学期");
  window->jffs.type("刷卡");
  window->allLines.toggle();

  window->arrearsMode.toggle();
  EXPECT_FALSE(desk.session.fee_normal_mode);
  EXPECT_EQ(shown(*window), "2026-9-14|学费|380.00|x|380.00\n2026-9-15|住宿费|300.00|o|\n");
  EXPECT_EQ(window->lines[1].lsh, "20260601003");
  EXPECT_EQ(window->totalDue.text() + " " + window->totalPaid.text(), "680.00 380.00");
  EXPECT_EQ(window->arrearsMode.caption() + window->allLines.caption(), "正常收费全部选择");
  EXPECT_EQ(window->xq.text() + window->jffs.text() + window->xm.text(), "2026学年下学期现金王小明");
  EXPECT_NE(window->modeHeading.colour(), normalColour);

  window->arrearsMode.toggle();
  EXPECT_TRUE(desk.session.fee_normal_mode);
  EXPECT_EQ(shown(*window), standards);
  EXPECT_EQ(window->arrearsMode.caption(), "加载欠费");
  EXPECT_FALSE(window->confirm.enabled());
}

TEST(FeeWindow, WaitsUntilItsTimerTicks) {
  FeeDesk desk;
  auto wait = opened<Formzctsf6>(desk);
  EXPECT_FALSE(wait->closed());
  desk.navigator.expect<Formzctsf4>();
  wait->timer.tick();
  EXPECT_TRUE(wait->closed());
}

}  // namespace
