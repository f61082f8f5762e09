#include "collection/receipt.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/text.h"
#include "collection/batch_voucher.h"
#include "collection/receipt_notes.h"
#include "collection/receipt_print.h"
#include "support/test_desk.h"

namespace {

using namespace collection;
using base::Money;
using kit::Box;
using support::opened;
using support::TestDesk;

PrintedReceipt receiptOf(std::size_t rows) {
  PrintedReceipt receipt{.school = "示范学校",
                         .fpbh = "10000123",
                         .xh = "20260001",
                         .xm = "王小明",
                         .bjmc = "计算机1班",
                         .xq = "2026学年上学期",
                         .jffs = "现金",
                         .jfrq = "2026-09-07",
                         .rows = {},
                         .total = {},
                         .notes = {},
                         .cashier = "李芳",
                         .printed = {{2026, 9, 7}, 8, 30, 5}};
  for (std::size_t row = 0; row < rows; ++row) {
    receipt.rows.push_back({"项目" + std::to_string(row), Money::fen(static_cast<std::int64_t>(row) * 1000 + 50)});
    receipt.total += receipt.rows.back().je;
  }
  for (std::size_t entry = 0; entry < 10; ++entry) {
    receipt.notes.receipt_remarks[entry] = "备注" + std::to_string(entry);
    receipt.notes.receipt_summaries[entry] = "摘要" + std::to_string(entry);
  }
  return receipt;
}

// Where a text stands: "x,y size" with one decimal; "" when it is not on the page.
std::string at(const platform::Page& page, const std::string& text) {
  for (const platform::Mark& mark : page.marks)
    if (const auto* found = std::get_if<platform::Text>(&mark); found && found->text == text) {
      char place[40];
      std::snprintf(place, sizeof place, "%.1f,%.1f %.1f", found->x, found->y, found->size);
      return place + std::string(found->face == platform::Face::Hei ? " 黑体" : "");
    }
  return "";
}

// The y of each rule from frame to frame, and the x of each column rule.
std::string rules(const platform::Page& page, double left, double right) {
  std::string across, down;
  for (const platform::Mark& mark : page.marks)
    if (const auto* line = std::get_if<platform::Line>(&mark)) {
      if (line->x1 == left && line->x2 == right) across += " " + base::plainNumber(line->y1);
      if (line->x1 == line->x2) down += " " + base::plainNumber(line->x1);
    }
  return across + " |" + down;
}

struct Place {
  std::string text, one, two;
};

TEST(Receipt, EveryTextStandsAtItsPlace) {
  const Place places[] = {
      {"学杂费交费凭证（代收据）", "63.0,10.0 20.0", ""},
      {"  收   费   收   据", "", "66.0,10.0 20.0"},
      {"示范学校", "42.0,21.5 11.0", "32.0,21.5 11.0"},
      {"10000123", "160.0,21.5 11.0 黑体", "157.0,21.5 11.0 黑体"},
      {"学  号  ", "25.0,28.0 12.0", "20.0,28.0 12.0"},
      {"现金", "142.0,34.5 11.0", "142.0,34.5 11.0"},
      {"    金 额   ", "92.8,42.0 12.0", "92.4,42.0 12.0"},
      {"1", "28.0,47.8 10.0", ""},
      {"项目1", "45.0,52.8 10.0", "45.0,52.8 10.0"},
      {"    10.50", "97.0,52.8 10.0", "97.0,52.8 10.0"},
      {"备注1", "121.0,52.8 10.0", "121.0,52.8 10.0"},
      {"摘要4", "", "12.0,67.8 10.0"},  // also in a line without a payment
      {"    31.50", "98.0,62.8 10.0", "98.0,73.5 10.0"},
      {"大写：叁拾壹元伍角零分", "121.0,62.8 10.0", "121.0,73.5 10.0"},
      {"打印时间：2026-9-7 8:30:05", "27.0,68.0 10.0", "12.0,79.0 10.0"},
      {"收款人：李芳", "140.0,68.0 10.0", "150.0,79.0 10.0"},
      {"备注4", "121.0,78.0 10.0", "121.0,67.8 10.0"},  // layout one: below the footer
      {"备注5", "", ""},
  };
  const PrintedReceipt receipt = [] {
    PrintedReceipt three = receiptOf(3);
    three.total = Money::fen(3150);
    return three;
  }();
  const auto one = layoutOne(receipt), two = layoutTwo(receipt);
  for (const Place& place : places) {
    EXPECT_EQ(at(one.pages[0], place.text), place.one) << place.text;
    EXPECT_EQ(at(two.pages[0], place.text), place.two) << place.text;
  }
  EXPECT_EQ(rules(one.pages[0], 20, 185), " 41 47 52 57 62 67 | 20 42 78 95 118 185");
  EXPECT_EQ(rules(two.pages[0], 10, 196), " 41 47 52 57 62 67 72 78 | 10 42 78 95 118 196");
}

TEST(Receipt, TheVoucherOfABatchIsInTheMannerOfLayoutTwo) {
  const auto drawing = batchVoucher({.school = "示范学校",
                                     .person = "赵老师",
                                     .xq = "2026学年上学期",
                                     .bjmc = "计算机1班",
                                     .sfxm = "书本费",
                                     .jfrq = "2026-8-31",
                                     .cashier = "李芳",
                                     .standard = Money::yuan(300),
                                     .students = 60,
                                     .total = Money::yuan(18000)});
  ASSERT_EQ(drawing.pages.size(), 1u);
  const std::pair<const char*, const char*> places[] = {
      {"  集中收费上交凭证", "66.0,10.0 20.0"},
      {"赵老师", "45.0,28.5 11.0"},
      {"300.00", "99.0,28.5 11.0"},
      {"集中收费上交款", "12.0,47.8 10.0"},
      {"书本费", "45.0,47.8 10.0"},
      {"   18000.00", "97.0,47.8 10.0"},
      {"交费学生人数 60 人", "121.0,47.8 10.0"},
      {"大写：壹万捌仟元零角零分", "121.0,73.5 10.0"},
      {"交费日期：2026-8-31", "12.0,79.0 10.0"},
  };
  for (const auto& [text, place] : places) EXPECT_EQ(at(drawing.pages[0], text), place) << text;
  EXPECT_EQ(rules(drawing.pages[0], 10, 196), " 41 47 52 57 62 67 72 78 | 10 42 78 95 118 196");
}

TEST(Receipt, LayoutOneGrowsWithItsRows) {
  for (const std::size_t rows : {0u, 1u, 5u, 10u, 40u}) {
    const auto drawing = layoutOne(receiptOf(rows));
    ASSERT_EQ(drawing.pages.size(), 1u);
    const double last = 47 + 5.0 * static_cast<double>(rows);
    const std::string closing = base::plainNumber(last + 5) + " |";
    EXPECT_NE(rules(drawing.pages[0], 20, 185).find(closing), std::string::npos) << rows;
    for (const platform::Mark& mark : drawing.pages[0].marks)
      if (const auto* text = std::get_if<platform::Text>(&mark)) {
        EXPECT_LT(text->y + 5, drawing.height) << text->text;
      }
  }
  const auto empty = layoutOne(receiptOf(0));
  EXPECT_EQ(at(empty.pages[0], "大写：零分"), "121.0,47.8 10.0");
  EXPECT_EQ(at(empty.pages[0], "       0.00"), "98.0,47.8 10.0");
}

TEST(Receipt, NoRowOfAnArrearsReceiptIsLost) {
  const PrintedReceipt receipt = receiptOf(7);
  const auto drawing = layoutTwo(receipt);
  ASSERT_EQ(drawing.pages.size(), 2u);
  const platform::Page &first = drawing.pages[0], &second = drawing.pages[1];
  EXPECT_EQ(at(first, "项目4"), "45.0,67.8 10.0");
  EXPECT_EQ(at(second, "项目5") + at(second, "项目6"), "45.0,47.8 10.045.0,52.8 10.0");
  EXPECT_EQ(at(first, "实 收 金 额  "), "");
  EXPECT_EQ(at(second, base::paddedAmount(receipt.total)), "98.0,73.5 10.0");
  EXPECT_EQ(at(second, "备注0") + at(second, "备注5"), "");
}

TEST(Receipt, LongTextsKeepToTheirPlacesAndStayWhole) {
  PrintedReceipt receipt = receiptOf(10);
  for (ReceiptRow& row : receipt.rows)
    row.sfxm = std::string("高等教育自学考试助学与技能鉴定报名材料工本费用第十项目组");
  std::string fifty;
  for (int i = 0; i < 10; ++i) fifty += "计算机应用";
  receipt.bjmc = fifty;
  receipt.xm = "阿卜杜拉·买买提江·吐尔逊·热合曼诺娃";
  for (const auto& drawing : {layoutOne(receipt), layoutTwo(receipt)}) {
    std::string bjmc, xm, items;
    for (const platform::Mark& mark : drawing.pages[0].marks)
      if (const auto* text = std::get_if<platform::Text>(&mark)) {
        const bool header = text->y < 41, small = text->size < 10;
        if (header && text->x == 45 && small) bjmc += text->text;
        if (header && text->x == 97) xm += text->text;
        if (!header && text->x == 45 && text->y < 52) items += text->text;
        if (text->fit > 0 && small) {
          EXPECT_LE(static_cast<double>(base::length(text->text)) * text->size * 25.4 / 72, text->fit) << text->text;
        }
      }
    EXPECT_EQ(bjmc, fifty);
    EXPECT_EQ(xm, receipt.xm);
    EXPECT_EQ(items, receipt.rows[0].sfxm);
  }
  receipt.bjmc = fifty + fifty + fifty;
  const auto marks = layoutOne(receipt).pages[0].marks;
  EXPECT_TRUE(std::any_of(marks.begin(), marks.end(), [](const platform::Mark& mark) {
    const auto* text = std::get_if<platform::Text>(&mark);
    return text && text->text.ends_with("……");
  }));
}

TEST(Receipt, ChoosesTheLayout) {
  using enum ReceiptLayout;
  const std::string form = "江西省学校收费专用收据";
  const struct {
    bool normal;
    int style;
    std::string form;
    std::size_t rows;
    ReceiptLayout expected;
  } cases[] = {{true, 1, "", 1, One},      {true, 1, "", 10, One},         {true, 2, "", 5, Two},
               {true, 2, "", 6, One},      {true, 3, form, 7, Preprinted}, {true, 3, form, 8, One},
               {true, 3, "别的", 1, None}, {true, 3, "", 1, None},         {false, 1, "", 8, Two},
               {false, 2, "", 6, Two},     {false, 3, form, 1, Two},       {false, 3, "别的", 1, Two}};
  for (const auto& one : cases)
    for (const bool zdqh : {false, true}) {
      kit::Session session;
      session.receipt_style = one.style;
      session.custom_form = one.form;
      session.switch_layout = zdqh;
      EXPECT_EQ(chooseLayout(session, one.normal, one.rows), one.expected)
          << one.normal << one.style << one.form << one.rows;
    }
}

struct PrintDesk : TestDesk {
  explicit PrintDesk(int rows) {
    session.SchoolName = "示范学校";
    session.SessionUser = "李芳";
    print = {.print_fpbh = "10000123", .print_xm = "王小明", .print_bjmc = "计算机一二三班"};
    print.notes.receipt_remarks.fill("备注");
    for (int row = 0; row < rows; ++row)
      add("jfjl",
          {{"lsh", "20260907000" + std::to_string(row)}, {"fpbh", "10000123"}, {"sfxm", " 学费"}, {"je", "12.30"}});
    add("jfjl", {{"lsh", "202609070099"}, {"fpbh", "10000124"}, {"sfxm", "别人的"}, {"je", "999"}});
  }
  ReceiptPrint print;
};

TEST(ReceiptPrint, PrintsTheRowsOfTheReceipt) {
  PrintDesk desk(3);
  auto screen = opened<Formzctsf5>(desk, desk.print);
  EXPECT_EQ(screen->text.text(), "正在打印收据 ...");
  EXPECT_TRUE(desk.printer.shown.empty());
  screen->timer.tick();
  EXPECT_TRUE(screen->closed());
  ASSERT_EQ(desk.printer.shown.size(), 1u);
  const platform::Page& page = desk.printer.shown[0].pages[0];
  EXPECT_NE(at(page, "大写：叁拾陆元玖角零分"), "");
  EXPECT_NE(at(page, "打印时间：2026-9-7 8:30:05"), "");
  EXPECT_EQ(at(page, "备注"), "121.0,47.8 10.0");
  EXPECT_EQ(at(page, "别人的"), "");
}

// It says nothing of what another receipt said, and keeps to the setting's layout.
TEST(ReceiptPrint, AReprintIsOfItsRowAlone) {
  PrintDesk desk(1);
  desk.session.print_jffs = "刷卡";
  store::RecordSet row(desk.store, "select * from jfjl where fpbh='10000124'");
  const ReceiptPrint print = reprintOf(row, desk.session);
  EXPECT_EQ(print.print_fpbh + "|" + print.print_jffs, "10000124|刷卡");
  for (const std::string& remark : print.notes.receipt_remarks) EXPECT_EQ(remark, "");
  EXPECT_EQ(chooseLayout(desk.session, print.fee_normal_mode, 1), ReceiptLayout::One);
}

TEST(ReceiptPrint, WithoutALayoutNothingIsPrinted) {
  PrintDesk desk(1);
  desk.session.receipt_style = 3;
  auto screen = opened<Formzctsf5>(desk, desk.print);
  screen->timer.tick();
  EXPECT_TRUE(screen->closed());
  EXPECT_TRUE(desk.printer.shown.empty());
}

TEST(ReceiptPrint, FillsThePreprintedForm) {
  PrintDesk desk(7);
  desk.session.receipt_style = 3;
  desk.session.custom_form = "江西省学校收费专用收据";
  desk.print.print_xq = "2026学年上学期";  // nine characters: not moved
  desk.print.print_bjmc = "计算机应用技术专业甲班";
  auto screen = opened<Formzctsf5>(desk, desk.print);
  screen->timer.tick();
  ASSERT_EQ(desk.printer.shown.size(), 1u);
  const platform::Page& page = desk.printer.shown[0].pages[0];
  const std::pair<std::string, std::string> places[] = {{"10000123", "19.1,16.5 9.0"},
                                                        {"王小明", "16.9,31.8 9.0"},
                                                        {"2026学年上学期", "137.6,31.8 9.0"},
                                                        {"计算机应用技术专业", "103.7,28.6 9.0"},
                                                        {"甲班", "103.7,32.1 9.0"},
                                                        {"学费", "16.9,46.6 9.0"},
                                                        {"12.30", "95.2,46.6 9.0"},
                                                        {"86.10", "133.3,78.3 9.0"},
                                                        {"捌拾陆元壹角零分", "50.8,78.3 9.0"},
                                                        {"李芳", "112.2,85.8 9.0"},
                                                        {"电脑打印 手写无效", "129.1,86.8 7.5"}};
  for (const auto& [text, place] : places) EXPECT_EQ(at(page, text), place) << text;
}

TEST(ReceiptNotes, AnswersTheTypedNotes) {
  TestDesk desk;
  desk.session.receipt_style = 2;
  auto screen = opened<Formzctsf8>(desk, ReceiptNotes{.receipt_remarks = {"", "补交"}});
  auto& lines = screen->lines;
  EXPECT_EQ(screen->focused, &lines[0].summary);
  EXPECT_EQ(lines[1].remark.text(), "补交");
  lines[4].summary.type("一二三四五六七八九十一二三四五六");
  lines[0].remark.type(std::string(31, 'x'));
  desk.person.expect(Box::Warning, "每一行摘要不能多于15个字符    ", "信息提示");
  screen->print.press();
  lines[4].summary.type(" 一二三四五六七八九十一二三四五 ");
  desk.person.expect(Box::Warning, "每一行备注不能多于30个字符    ", "信息提示");
  screen->print.press();
  EXPECT_FALSE(screen->closed());
  EXPECT_EQ(screen->focused, &lines[0].remark);
  EXPECT_EQ(screen->answer.receipt_summaries[4], "");
  lines[0].remark.type(std::string(30, 'x'));
  screen->print.press();
  EXPECT_TRUE(screen->closed());
  EXPECT_EQ(screen->answer.receipt_summaries[4], "一二三四五六七八九十一二三四五");
  EXPECT_EQ(screen->answer.receipt_remarks[0], std::string(30, 'x'));
}

TEST(ReceiptNotes, LayoutOneHasNoSummariesAndNotesCanBeDropped) {
  TestDesk desk;
  desk.session.receipt_style = 1;
  auto screen = opened<Formzctsf8>(desk, ReceiptNotes{.receipt_remarks = {"甲", "", "", "", "戊"}});
  for (const auto& line : screen->lines) EXPECT_FALSE(line.summary.enabled());
  EXPECT_EQ(screen->focused, &screen->lines[0].remark);
  screen->withoutNotes.press();
  EXPECT_TRUE(screen->closed());
  EXPECT_EQ(screen->answer.receipt_remarks[0] + screen->answer.receipt_remarks[4], "");
}

}  // namespace
