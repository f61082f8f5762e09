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
    owe("1", "20260001", Money::yuan(100), Money::yuan(40), "不足");
    owe("2", "20260001", Money::yuan(50), Money::yuan(50), "结清");
    owe("3", "20260002", Money::yuan(30), Money::yuan(30), "结清");
    for (const char* lsh : {"2", "3"}) set(lsh, "sbjrq", Date{2026, 9, 2});
  }
  kit::Editing editing(const std::string& lsh) { return {kit::Mode::Modify, mark(lsh)}; }
  void question() { person.answer(true, Box::Ask, "您确认是要修改欠费记录吗？     ", "操作提示"); }
  void saves(Formqf& s) {
    question();
    person.expect(Box::Information, "记录修改成功！     ", "信息提示");
    s.confirm.press();
    EXPECT_TRUE(s.closed());
  }
  void fails(Formqf& s, const std::string& words) {
    question();
    failed(words);
    s.confirm.press();
  }
  std::string row(const std::string& lsh) {
    const std::string all = dump("qfjl", "lsh|xh|qfrq|bjje|sbjrq|sbjje|clfs");
    const auto at = ("\n" + all).find("\n" + lsh + "|");
    return all.substr(at, all.find('\n', at) - at);
  }
};

TEST(ArrearsEdit, ShowsAndWritesTheRow) {
  EditDesk desk;
  desk.set("1", "bjje", "33.3333");
  auto s = opened<Formqf>(desk, desk.editing("1"));
  EXPECT_EQ(base::join({s->xh.text(), s->xm.text(), s->bjmc.text(), s->qfrq.text(), s->bjje.text(), s->sbjrq.text(),
                        s->clfs.text()},
                       "|"),
            "20260001|王小明|计算机1班|2026-9-1|33.33||不足");
  s->clfs.drop();
  EXPECT_EQ(base::join(s->clfs.choices(), " "), "不足 结清");
  s->lsh.type("9");
  s->sbjrq.type("2026/9/05");
  s->clfs.type("结清");
  desk.person.answer(false, Box::Ask, "您确认是要修改欠费记录吗？     ", "操作提示");
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  desk.saves(*s);
  EXPECT_EQ(desk.row("9"), "9|20260001|2026-9-1|33.3333|2026-9-5|40|结清");  // what was not touched keeps its places

  auto back = opened<Formqf>(desk, desk.editing("3"));  // back to nothing paid: an emptied amount is no amount
  back->clfs.type("");
  back->sbjrq.type("");
  back->sbjje.type(" ");
  desk.saves(*back);
  EXPECT_EQ(desk.row("3"), "3|20260002|2026-9-1|30||0|");
  EXPECT_EQ(desk.count("select * from qfjl where bjje>sbjje and clfs<>'减免' and lsh='3'"), 1);
}

TEST(ArrearsEdit, OpensOnlyForARowToChange) {
  EditDesk desk;
  desk.person.expect(kit::Box::Information, "选定的记录已被其他计算机删除，请重新选择！", "信息提示");
  EXPECT_TRUE(opened<Formqf>(desk, kit::Editing{kit::Mode::Modify, 999})->closed());
  EXPECT_TRUE(opened<Formqf>(desk, kit::Editing{kit::Mode::Delete, desk.mark("1")})->closed());
}

TEST(ArrearsEdit, KeepsNumbersApart) {
  EditDesk desk;
  auto s = opened<Formqf>(desk, desk.editing("2"));
  for (const auto& [typed, words] :
       {std::pair{" ", "记录标识号不能为空！    "}, {"2'", "记录标识号中不能含有单引号（'）！    "}}) {
    s->lsh.type(typed);
    desk.question();
    desk.refused(words);
    s->confirm.press();
  }
  s->lsh.type("1");
  desk.fails(*s, "记录标识号“1”已被另一条欠费记录使用，请改用其他标识号！");
  EXPECT_EQ(desk.row("2"), "2|20260001|2026-9-1|50|2026-9-2|50|结清");
}

// Of two rows with one number the selected one is changed; what another desk has changed meanwhile is not written over.
TEST(ArrearsEdit, ChangesTheSelectedRowAloneAndNothingThatWasChangedMeanwhile) {
  EditDesk desk;
  auto s = opened<Formqf>(desk, desk.editing("2"));
  desk.set("1", "lsh", "2");
  s->xq.type("2027学年上学期");
  desk.saves(*s);
  EXPECT_EQ(desk.dump("qfjl", "xq|sbjje", "lsh"), "2026学年下学期|40\n2027学年上学期|50\n2026学年下学期|30\n");

  auto amount = opened<Formqf>(desk, desk.editing("3")), term = opened<Formqf>(desk, desk.editing("3"));
  desk.set("3", "sbjje", Money::yuan(10));  // paid, waived or corrected at another desk
  amount->bjje.type("31");
  desk.fails(*amount, "该欠费记录的交费情况已被其他计算机修改，请撤销后重新打开该记录再修改！");
  term->xq.type("2027学年上学期");
  desk.saves(*term);
  EXPECT_EQ(desk.row("3"), "3|20260002|2026-9-1|30|2026-9-2|10|结清");
}

TEST(ArrearsEdit, StopsAtTheFirstFailure) {
  EditDesk desk;
  auto s = opened<Formqf>(desk, desk.editing("1"));
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
    auto s = opened<Formqfcl5>(desk, kit::Editing{kit::Mode::Delete, desk.mark("1")});
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

TEST(ArrearsDelete, TakesTheSelectedRowOfTwoWithOneNumber) {
  EditDesk desk;
  desk.set("3", "lsh", "1");  // of another student
  store::RecordSet rows(desk.store, "select * from qfjl where xh='20260002'");
  auto s = opened<Formqfcl5>(desk, kit::Editing{kit::Mode::Delete, rows.mark()});
  desk.person.answer(true, Box::AskStop, "您确认要删除标识号为：1 的这条欠费记录吗？     ", "警告")
      .expect(Box::Information, "选定记录已删除！      ", "信息提示");
  s->confirm.press();
  EXPECT_EQ(desk.dump("qfjl", "lsh|xh", "lsh"), "1|20260001\n2|20260001\n");
}

TEST(ArrearsDelete, WhatChangedDuringTheQuestionStays) {
  const char* const questions[] = {"您确认要删除标识号为：2 的这条欠费记录吗？     ",
                                   "您确认要删除王小明的 2条欠费记录吗？     ",
                                   "您确认要删除后台数据库中的 2条已结清的欠费记录吗？     "};
  for (int option = 0; option < 3; ++option) {
    EditDesk desk;
    auto s = opened<Formqfcl5>(desk, kit::Editing{kit::Mode::Delete, desk.mark("2")});
    if (option > 0) s->option.choose(option);
    desk.person.answer(true, Box::AskStop, questions[option], "警告").meanwhile([&] { desk.set("2", "clfs", "减免"); });
    desk.told(changedMeanwhile);
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(desk.count("select * from qfjl"), 3);
  }
}

TEST(ArrearsDelete, NothingToDelete) {
  ArrearsDesk desk;
  auto s = opened<Formqfcl5>(desk, kit::Editing{kit::Mode::Delete, 999});
  desk.gone();
  s->confirm.press();
  desk.person.expect(Box::Information, "不存在已结清记录！      ", "信息提示");
  s->option.choose(2);
  s->confirm.press();
  EXPECT_FALSE(s->closed());
}

}  // namespace
