#include "arrears/arrears_edit.h"

#include "arrears/arrears_delete.h"
#include "arrears_desk.h"
#include "base/text.h"

namespace {

using namespace arrears;
using namespace arrears_tests;
using support::opened;

struct EditDesk : ArrearsDesk {
  EditDesk() {
    session.EditMode = kit::Mode::Modify;
    session.arrears_selection = "1";
    owe("1", "20260001", Money::yuan(100), Money::yuan(40), "不足");
    owe("2", "20260001", Money::yuan(50), Money::yuan(50), "结清");
    owe("3", "20260002", Money::yuan(30), Money::yuan(30), "结清");
  }
  void question() { person.answer(true, Box::Ask, "您确认是要修改欠费记录吗？     ", "操作提示"); }
};

TEST(ArrearsEdit, ShowsAndWritesTheRow) {
  EditDesk desk;
  auto s = opened<Formqf>(desk);
  EXPECT_EQ(
      s->xh.text() + s->xm.text() + s->bjmc.text() + s->qfrq.text() + s->bjje.text() + s->sbjrq.text() + s->clfs.text(),
      "20260001王小明计算机1班2026-9-1100.00不足");
  s->clfs.drop();
  EXPECT_EQ(base::join(s->clfs.choices(), " "), "不足 结清");
  s->lsh.type("2");  // nothing guards against a number that exists
  s->bjje.type("");
  s->sbjrq.type("2026/9/05");
  s->clfs.type("结清");
  desk.person.answer(false, Box::Ask, "您确认是要修改欠费记录吗？     ", "操作提示");
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  desk.question();
  desk.person.expect(Box::Information, "记录修改成功！     ", "信息提示");
  s->confirm.press();
  const std::string ledger = desk.dump("qfjl", "lsh|xh|qfrq|bjje|sbjrq|sbjje|clfs");
  EXPECT_EQ(ledger.substr(0, ledger.find('\n')), "2|20260001|2026-9-1||2026-9-5|40|结清");

  desk.session.arrears_selection = "3";  // back to nothing paid; the amount stays
  auto back = opened<Formqf>(desk);
  back->clfs.type("");
  desk.question();
  desk.person.expect(Box::Information, "记录修改成功！     ", "信息提示");
  back->confirm.press();
  EXPECT_EQ(desk.value("select * from qfjl where lsh='3'", "sbjje"), "30");
  EXPECT_EQ(desk.count("select * from qfjl where lsh='3' and clfs='' and sbjrq=''"), 1);
}

TEST(ArrearsEdit, OpensOnlyForARowToChange) {
  EditDesk desk;
  desk.session.arrears_selection = "9";
  EXPECT_TRUE(opened<Formqf>(desk)->closed());
  desk.session.arrears_selection = "1";
  desk.session.EditMode = kit::Mode::Delete;
  EXPECT_TRUE(opened<Formqf>(desk)->closed());
}

TEST(ArrearsEdit, StopsAtTheFirstFailure) {
  EditDesk desk;
  auto s = opened<Formqf>(desk);
  s->qfrq.type(""), s->bjrq.type(" "), s->sbjrq.type("x"), s->bjje.type("x"), s->sbjje.type("y"), s->clfs.type("欠");
  const std::string blank = "欠费日期不能为空 ！     ", bad = "欠费日期数据有误，应该是：yyyy-mm-dd 格式 ！     ";
  struct {
    kit::Field& field;
    std::string text, mended, title = "错误提示";
  } const steps[] = {
      {s->qfrq, blank, "2026-13-1"},
      {s->qfrq, bad, "2026-9-1"},
      {s->bjrq, blank, "后天"},
      {s->bjrq, bad, "2026-10-1"},
      {s->sbjrq, bad, ""},
      {s->bjje, "补交金额应该是数字 ！     ", "100"},
      {s->sbjje, "实交金额应该是数字 ！     ", ""},
      {s->clfs, "处理进度只能以“结清”“不足”“减免”来表示 ！  ", "减免", "操作提示"},
      {s->sbjrq, "实交日期不能为空！    ", "2026-9-7"},
      {s->sbjje, "实交金额不能为空！    ", "100"},
  };
  for (const auto& step : steps) {
    desk.question();
    desk.person.expect(Box::Stop, step.text, step.title);
    s->confirm.press();
    EXPECT_EQ(s->focused, &step.field) << step.text;
    step.field.type(step.mended);
  }
  EXPECT_EQ(desk.value("select * from qfjl where lsh='1'", "clfs"), "不足");
}

TEST(ArrearsDelete, TakesWhatTheOptionSays) {
  struct {
    int option;
    std::string question, done, left;
  } const cases[] = {
      {0, "您确认要删除标识号为：1 的这条欠费记录吗？     ", "选定记录已删除！      ", "2\n3\n"},
      {1, "您确认要删除王小明的 2条欠费记录吗？     ", "选定记录已删除！      ", "3\n"},
      {2, "您确认要删除后台数据库中的 2条已结清的欠费记录吗？     ", "后台所有已结清欠费记录被删除！      ", "1\n"},
  };
  for (const auto& one : cases) {
    EditDesk desk;
    auto s = opened<Formqfcl5>(desk);
    if (one.option > 0) s->option.choose(one.option);
    desk.person.answer(false, Box::AskStop, one.question, "警告").answer(true, Box::AskStop, one.question, "警告");
    s->confirm.press();
    EXPECT_EQ(desk.count("select * from qfjl"), 3);
    desk.person.expect(Box::Information, one.done, "信息提示");
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(desk.dump("qfjl", "lsh", "lsh"), one.left);
  }
}

TEST(ArrearsDelete, NothingToDelete) {
  ArrearsDesk desk;
  desk.session.arrears_selection = "9";
  auto s = opened<Formqfcl5>(desk);
  s->confirm.press();
  s->option.choose(1);
  s->confirm.press();
  desk.person.expect(Box::Information, "不存在已结清记录！      ", "信息提示");
  s->option.choose(2);
  s->confirm.press();
  EXPECT_FALSE(s->closed());
}

}  // namespace
