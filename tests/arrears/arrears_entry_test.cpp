#include "arrears/arrears_entry.h"

#include "arrears_desk.h"

namespace {

using namespace arrears;
using namespace arrears_tests;

// The entry for 王小明.
ArrearsFor given() { return {.current_xh = "20260001", .current_xq = "2026学年下学期"}; }
std::unique_ptr<Formqfcl> opened(ArrearsDesk& desk, ArrearsFor with = given()) {
  return support::opened<Formqfcl>(desk, std::move(with));
}

// A line as a person sees it: item total | date amount | date amount | date amount.
std::string shown(const DebtLine& line) {
  std::string text = line.sfxm.text() + " " + line.total.text();
  for (const InstalmentFields& one : line.instalments) text += "|" + one.date.text() + " " + one.amount.text();
  return text;
}

TEST(ArrearsEntry, HelpsWithTheInstalments) {
  ArrearsDesk desk;
  auto s = opened(desk);
  DebtLine& line = s->lines[1];
  auto& [first, second, third] = line.instalments;
  line.sfxm.pick("学费");
  line.total.type("300");
  line.total.enter();
  EXPECT_EQ(s->focused, &first.date);
  EXPECT_EQ(shown(line), "学费 300.00|2026-10-7 300.00| | ");
  second.amount.type("100");
  second.amount.leave();
  EXPECT_EQ(shown(line), "学费 300.00|2026-10-7 200.00|2026-11-6 100.00| ");
  third.amount.type("40.5");  // taken from the second alone
  third.amount.leave();
  EXPECT_EQ(shown(line), "学费 300.00|2026-10-7 200.00|2026-11-6 59.50|2026-12-6 40.50");
  line.total.type("");
  EXPECT_EQ(shown(line), "学费 | |2026-11-6 59.50|2026-12-6 40.50");
  second.amount.type("7");  // without a total nothing is worked out
  EXPECT_EQ(first.amount.text(), "");
}

TEST(ArrearsEntry, FindsTheStudentAndKeepsToIt) {
  ArrearsDesk desk;
  desk.session.shortfall_opens_arrears = true;
  desk.session.arrears_item = "学费";
  auto s = opened(desk, {.current_xq = "2026学年下学期"});
  EXPECT_EQ(s->status.text(), "收费前台已设置为 [ 学费 ] 差额自动加载！");
  EXPECT_EQ(s->qfts.text() + s->xq.text(), "72026学年下学期");
  EXPECT_EQ(s->focused, &s->xh);
  desk.person.expect(Box::Stop, "学号不能为空！     ", "错误提示")
      .expect(Box::Information, "检测不到该学号对应的相关记录，请检查学号输入是否正确！    ", "信息提示")
      .expect(Box::Information, "该生相关记录不存在，请检查姓名输入是否正确！   ", "信息提示")
      .expect(Box::Information, "学生姓名不唯一，请您用学号调用该生的相关记录！    ", "操作提示");
  const auto number = [&](const char* text) {
    s->xh.type(text);
    s->xh.enter();
  };
  const auto name = [&](const char* text) {
    s->xm.type(text);
    s->xm.enter();
  };
  number(" ");
  number("9999");
  number(" 20260002 ");
  EXPECT_EQ(s->xm.text() + "|" + s->bjmc.text(), "张三|计算机2班");
  s->xm.type("王小");
  s->xm.leave();
  EXPECT_EQ(s->xm.text(), "张三");
  name("无名");
  EXPECT_EQ(s->xh.text() + s->xm.text() + s->bjmc.text(), "");
  name("张三");
  name("王小明");
  EXPECT_EQ(s->xh.text(), "20260001");
  EXPECT_EQ(s->focused, &s->lines[0].sfxm);

  const char* changed = "学号已被修改，不能录入！是否还原该生正确的学号 ？     ";
  s->xh.type("20260003");
  desk.person.answer(false, Box::AskStop, changed, "错误提示").answer(true, Box::AskStop, changed, "错误提示");
  s->confirm.press();
  EXPECT_EQ(s->focused, &s->xh);
  s->confirm.press();
  EXPECT_EQ(s->xh.text(), "20260001");
  EXPECT_EQ(desk.count("select * from qfjl"), 0);
}

TEST(ArrearsEntry, StopsAtTheFirstFailure) {
  ArrearsDesk desk;
  auto s = opened(desk, {.current_xh = "20260001"});
  auto& lines = s->lines;
  // Everything is wrong at first; each step mends what was named.
  lines[2].sfxm.type("一二三四五六七八九十一二三四五六七八九十一");
  lines[2].instalments[2].date.type("2026-2-30");
  lines[1].instalments[0].date.type("明天");
  lines[1].total.type("三百");
  lines[1].instalments[0].amount.type("一");
  lines[0].instalments[1].amount.type("x");
  struct {
    kit::Field& field;
    std::string text, mended;
  } const steps[] = {
      {lines[2].sfxm, "收费项目不能超过20个字符，请双击收费项目栏进行正确的选择！    ", ""},
      {lines[1].total, "欠费总额应该是数字 ！     ", "0.30"},
      {lines[1].instalments[0].amount, "补交金额应该是数字 ！     ", "0.1"},
      {lines[0].instalments[1].amount, "补交金额应该是数字 ！     ", ""},
      {lines[1].instalments[0].date, "补交日期格式不正确，请输入正确的格式 yyyy-m-d  ！  ", "2026/10/7"},
      {lines[2].instalments[2].date, "补交日期格式不正确，请输入正确的格式 yyyy-m-d  ！  ", ""},
      {lines[1].total, "分期补交累计金额不等于欠费总额！       ", "0.30"},
  };
  for (const auto& step : steps) {
    desk.person.expect(Box::Stop, step.text, "错误提示");
    s->confirm.press();
    EXPECT_EQ(s->focused, &step.field) << step.text;
    step.field.type(step.mended);
    if (&step.field == &lines[1].total) lines[1].instalments[0].amount.type("一");
  }
  const auto refused = [&](const char* text) {
    desk.person.expect(Box::Stop, text, "错误提示");
    s->confirm.press();
  };
  lines[1].instalments[1].amount.type("0.2");  // 0.10 and 0.20 differ from 0.30 in the last bit
  EXPECT_EQ(lines[1].instalments[0].amount.text(), "0.10");
  refused("分期补交累计金额不等于欠费总额！       ");
  lines[1].total.type("0");
  lines[1].instalments[1].amount.type("");
  refused("收费项目名称不能为空 ！       ");
  lines[1].sfxm.type("学费");
  refused("学生姓名等相关信息不能为空 ！       ");
  s->xq.set("2026");
  refused("欠费总额不能为零 ！       ");
  EXPECT_EQ(desk.count("select * from qfjl"), 0);
}

TEST(ArrearsEntry, WritesARowAnInstalmentAndRemindsOfTheFirstLine) {
  const bool panels[] = {true, false};
  for (const bool inPanel : panels) {
    ArrearsDesk desk;
    desk.session.arrears_in_remark = inPanel;
    ArrearsFor with = given();
    if (inPanel) with.ConsolePanel = kit::Panel::Arrears;
    with.receipt_remarks.fill("旧");
    auto s = opened(desk, with);
    s->lines[0].sfxm.type("学费");
    s->lines[0].total.type("300");
    s->lines[0].instalments[1].amount.type("100");
    s->lines[1].sfxm.type("住宿费");  // a total without a date makes no row, and is no fault
    s->lines[1].total.type("50");
    s->lines[1].instalments[0].date.type("");
    s->lines[2].sfxm.type("书本费");
    s->lines[2].total.type("20");
    desk.person.expect(Box::Information, "欠费信息录入成功 ！     ", "信息提示");
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    const std::string who = "|20260001|王小明|计算机1班|0101001|", day = "|2026-9-7|2026学年下学期|";
    const std::string mark = inPanel ? "||0||7|李芳|收费一号机\n" : "||0||7|李芳|2026-9-7 8:30:05\n";
    EXPECT_EQ(desk.dump("qfjl", "lsh|xh|xm|bjmc|xtbh|sfxm|qfrq|xq|bjrq|bjje|sbjrq|sbjje|clfs|qfts|skr|bsh", "lsh"),
              "20260907001" + who + "学费" + day + "2026-10-7|200" + mark + "20260907002" + who + "学费" + day +
                  "2026-11-6|100" + mark + "20260907004" + who + "书本费" + day + "2026-10-7|20" + mark);
    EXPECT_TRUE(s->answer.added);
    const auto& remarks = s->answer.receipt_remarks;
    EXPECT_EQ(remarks[0] + "/" + remarks[1] + "/" + remarks[2] + "/" + remarks[3],
              inPanel ? "旧/2026年10月7日前需补交200.00元/2026年11月6日前需补交100.00元/旧" : "///");
  }
}

TEST(ArrearsEntry, WritesNothingOnAStudentWhoWasMovedOrDeletedMeanwhile) {
  for (const bool deleted : {false, true}) {
    ArrearsDesk desk;
    auto s = opened(desk, given());
    s->lines[0].sfxm.type("学费");
    s->lines[0].total.type("300");
    store::RecordSet student(desk.store, "select * from xs where xh='20260001'");
    deleted ? student.removeAll() : student.setAll("bjmc", "计算机2班");
    desk.failed("“王小明”的学籍资料已被其他计算机修改或删除，请重新输入学号调用该生的记录！");
    s->confirm.press();
    EXPECT_FALSE(s->closed());
    EXPECT_EQ(desk.count("select * from qfjl"), 0);
  }
}

TEST(ArrearsEntry, LoadsTheShortfallOfTheFeeWindow) {
  struct {
    std::string item;
    bool loads;
    std::vector<std::string> items;
  } const cases[] = {
      {"住宿费", true, {"住宿费 600.00", " ", " "}},
      {"学费", true, {" ", " ", " "}},  // paid in full
      {"", true, {"书本费 150.50", "班费 -5.00", "校服费 1.00"}},
      {"住宿费", false, {" ", " ", " "}},
  };
  for (const auto& one : cases) {
    ArrearsDesk desk;
    desk.session.shortfall_opens_arrears = one.loads;
    desk.session.arrears_item = one.item;
    ArrearsFor with = given();
    with.from_fee_window = true;
    with.fee_lines = {{"学费", Money::yuan(2400), Money::yuan(2400)},  {"住宿费", Money::yuan(600), {}},
                      {"书本费", Money::fen(35050), Money::yuan(200)}, {"班费", Money::yuan(5), Money::yuan(10)},
                      {"校服费", Money::yuan(2), Money::yuan(1)},      {"水费", Money::yuan(2), Money::yuan(1)}};
    with.receipt_remarks.fill("x");
    auto s = opened(desk, with);
    for (std::size_t i = 0; i < 3; ++i)
      EXPECT_EQ(s->lines[i].sfxm.text() + " " + s->lines[i].total.text(), one.items[i]);
    EXPECT_EQ(s->lines[0].instalments[0].date.text(), one.items[0] == " " ? "" : "2026-10-7");
    EXPECT_EQ(s->focused, one.loads ? &s->lines[0].instalments[1].amount : &s->xh);
    s->cancel.press();
    EXPECT_FALSE(s->answer.added);
    EXPECT_EQ(s->answer.receipt_remarks[0] + s->answer.receipt_remarks[9], "");
  }
}

}  // namespace
