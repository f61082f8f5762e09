#include "students/student_edit.h"

#include "students/school.h"
#include "students/student_view.h"

namespace students {
namespace {

using kit::Box;
using kit::Mode;
using kit::Panel;
using support::opened;

std::unique_ptr<Formzctxs> openedFor(School& school, Mode mode, const std::string& xh = School::number) {
  return opened<Formzctxs>(school, kit::Editing{mode, mode == Mode::Add ? 0 : school.rowOf(xh)});
}

void fill(Formzctxs& s) {
  s.xm.type("张三");
  s.bjmc.pick("计算机11001班");
  s.rxxs.pick("统招");
}

const char* const keyQuestion = "该生的重要信息已被修改，这会更新该生在系统中的所有信息，您确认继续吗？    ";

void expectAdded(School& school) { school.told("学籍资料信息成功录入 ！      "); }

void askedToDelete(School& school, bool sure) {
  school.person.answer(true, Box::AskStop, "您确认是要删除选定学籍资料吗？   ", "警告")
      .answer(sure, Box::AskStop,
              "删除学生的学籍资料，将同时删除该生在系统中的所有记录！ \n\n选择“是”继续；否则，点“否”撤销此操作！   ",
              "再次警告");
}

TEST(StudentEdit, AddsWithTheDefaultsAndHandsTheNumberOn) {
  School school;
  auto s = openedFor(school, Mode::Add);
  EXPECT_EQ(s->xh.text(), "20260001010001");
  EXPECT_EQ(s->xb.text() + s->mz.text(), "男汉族");
  EXPECT_EQ(s->csrq.text() + " " + s->rxrq.text(), "2008-9-11 2026-9-7");
  EXPECT_TRUE(s->bjmc.blank() && s->bz.blank() && s->xp.bytes().empty());
  EXPECT_TRUE(s->xssf.visible());
  EXPECT_EQ(s->confirm.caption(), "添加");
  s->xh.type(" ");
  school.person.expect(Box::Stop, "学号是学生的唯一标识，您必须设置好学号！       ", "操作提示");
  s->xh.enter();
  EXPECT_EQ(s->focused, &s->xh);
  s->xh.type("20260001010001");
  fill(*s);
  expectAdded(school);
  s->confirm.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(s->answer, "20260001010001");
  EXPECT_EQ(school.stored("xtbh"), "11001001");
}

TEST(StudentEdit, ListsOfferWhatIsInUseAndLeadOn) {
  School school;
  for (const char* mz : {"汉族", "", "回族", "汉族"}) school.add("xs", {{"xh", "1"}, {"mz", mz}, {"zzmm", "团员"}});
  auto s = openedFor(school, Mode::Add);
  s->bjmc.pick("会计01001班");
  EXPECT_EQ(s->bjmc.choices(), (std::vector<std::string>{"会计01001班", "计算机11001班"}));  // by class code
  EXPECT_EQ(s->focused, &s->mz);
  EXPECT_EQ(s->zymc.text() + s->xtbh, "会计01001001");
  s->mz.pick("回族");
  EXPECT_EQ(s->mz.choices().size(), 2U);
  EXPECT_EQ(s->focused, &s->csrq);
  s->csrq.pick("2009-1-1");
  EXPECT_EQ(s->focused, &s->sfzhm);
  s->rxrq.pick("2026-9-1");
  EXPECT_EQ(s->focused, &s->zzmm);
  s->zzmm.pick("团员");
  EXPECT_EQ(s->focused, &s->lxdh);
  s->rxxs.pick("统招");
  EXPECT_EQ(s->focused, &s->sfbz);
  s->bjmc.type("计算机11001班");  // typed in full instead of picked
  s->bjmc.leave();
  EXPECT_EQ(s->zymc.text() + s->xtbh, "计算机11001001");
}

TEST(StudentEdit, TheIdentityNumberFillsOtherFields) {
  School school;
  auto s = openedFor(school, Mode::Add);
  s->sfzhm.type("13010219990101012x");
  s->sfzhm.leave();
  EXPECT_EQ(s->csrq.text() + s->xb.text() + s->sfzhm.text(), "1999-01-01女13010219990101012X");
  s->sfzhm.type("130102199901010x");
  school.person.expect(Box::Stop, "身份证号码位数不正确,请重新输入      ", "错误提示");
  s->sfzhm.leave();
  EXPECT_EQ(s->csrq.text() + s->xb.text() + s->sfzhm.text(), "1999-01-01女130102199901010X");
  s->xb.doubleClick();
  EXPECT_EQ(s->xb.text(), "男");
  s->xb.type("不详");
  s->xb.leave();
  EXPECT_EQ(s->xb.text(), "男");
}

TEST(StudentEdit, AWrongLengthNeverSavesWhateverTheAnswer) {
  School school;
  school.enrol("1001", "王小明");
  for (const Mode mode : {Mode::Add, Mode::Modify}) {
    const bool adds = mode == Mode::Add;
    auto s = openedFor(school, mode, "1001");
    fill(*s);
    for (const bool yes : {false, true}) {
      s->xh.type("10015");
      s->confirm.focusIn();
      school.person.expect(Box::Stop, "学号多1 位 ！   ", "错误提示")
          .answer(yes, Box::Ask, adds ? "您是否使用默认学号 ！     " : "是否先还原为原来的学号 ！     ", "操作提示");
      s->confirm.press();
      EXPECT_EQ(s->xh.text(), !yes ? "10015" : adds ? "1002" : "1001");
      EXPECT_EQ(s->focused, &s->xh);
    }
  }
  EXPECT_EQ(school.dump("xs", "xh|xm"), "1001|王小明\n");
}

TEST(StudentEdit, AddingBesideTheStudentListStaysOpenForTheNext) {
  School school;
  auto s = opened<Formzctxs>(school, kit::Editing{Mode::Add, 0, Panel::Students});
  fill(*s);
  s->xh.type("20260001010077");
  school.person.pickFile(school.file("a.gif", "GIF89a"));
  s->choosePhoto.press();
  EXPECT_EQ(s->xp.bytes(), "GIF89a");
  expectAdded(school);
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  EXPECT_EQ(s->xh.text(), "20260001010078");
  EXPECT_EQ(s->focused, &s->xm);
  EXPECT_TRUE(s->xm.blank() && s->bjmc.blank() && s->zymc.blank() && s->xp.bytes().empty());

  fill(*s);
  EXPECT_EQ(s->xtbh, "11001002");
  expectAdded(school);
  s->confirm.press();
  EXPECT_EQ(school.dump("xs", "xh|bsh"), "20260001010077|收费一号机\n20260001010078|收费一号机\n");
  EXPECT_EQ(school.photo("20260001010077") + school.photo("20260001010078"),
            "GIF89a");  // the photo was the first one's
}

TEST(StudentEdit, ATickedBoxOffersTheFeeWindow) {
  School school;
  const store::Sql settings = "select * from morvanedjpzb where fn='kqd'";
  const auto stored = [&] {
    return store::RecordSet(school.store, settings, store::Connection::Config).get("xssf").number();
  };
  std::string handedOn;
  auto s = openedFor(school, Mode::Add);
  EXPECT_FALSE(s->xssf.on());
  s->xssf.toggle();
  EXPECT_EQ(stored(), 1);
  const auto collect = [&](const std::string& current_xh) {
    EXPECT_TRUE(s->closed()) << "the record is in, whatever becomes of the fee window";
    handedOn = current_xh;
  };
  s = opened<Formzctxs>(school, kit::Editing{}, collect);
  EXPECT_TRUE(s->xssf.on());
  for (const bool yes : {false, true}) {
    if (yes) s = opened<Formzctxs>(school, kit::Editing{}, collect);
    fill(*s);
    school.person.answer(yes, Box::Ask, "学籍资料信息成功录入！要打开收费窗口收费吗？    ", "信息提示");
    s->confirm.press();
    EXPECT_EQ(handedOn, yes ? "20260001010002" : "");
    EXPECT_TRUE(s->closed());
  }
  openedFor(school, Mode::Add)->xssf.toggle();
  EXPECT_EQ(stored(), 0);
}

TEST(StudentEdit, ShowsARecordAndChangesItWithoutAskingWhenTheKeyStands) {
  School school;
  school.enrol(School::number, "王小明");
  auto s = openedFor(school, Mode::Modify);
  EXPECT_EQ(s->csrq.text() + " " + s->sfbz.text() + s->bz.text() + s->xp.bytes(), "2008-9-1 1500.00    走读GIF89a old");
  EXPECT_FALSE(s->xssf.visible());
  s->sjhm.type("13900000000");
  s->bjmc.pick("计算机11001班");  // the same class again
  school.person.expect(Box::Information, "选定记录已修改 ！       ", "信息提示");
  s->confirm.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(school.stored("sjhm") + school.stored("xtbh"), "1390000000011001001");
}

TEST(StudentEdit, AKeyChangeAsksFirst) {
  School school;
  school.enrol(School::number, "王小明");
  auto s = openedFor(school, Mode::Modify);
  s->xm.type("王晓明");
  for (const bool yes : {false, true}) {
    school.person.answer(yes, Box::Ask, keyQuestion, "信息提示");
    if (yes) school.told("选定记录已修改 ！       ");
    s->confirm.press();
    EXPECT_EQ(s->closed(), yes);
    EXPECT_EQ(school.stored("xm") + school.value("select * from qfjl", "xm"), yes ? "王晓明王晓明" : "王小明王小明");
  }
}

TEST(StudentEdit, DeletingAsksTwice) {
  School school;
  school.enrol(School::number, "王小明");
  school.enrol("20260001010002", "王小明");
  auto s = openedFor(school, Mode::Delete);
  EXPECT_FALSE(s->xm.enabled());
  const std::string before = school.everything();
  school.person.answer(false, Box::AskStop, "您确认是要删除选定学籍资料吗？   ", "警告");
  s->confirm.press();
  askedToDelete(school, false);
  s->confirm.press();
  EXPECT_EQ(school.everything(), before);
  askedToDelete(school, true);
  school.told("选定记录已删除 ！        ");
  s->confirm.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(school.dump("xs", "xh") + school.dump("jfjl", "xh"), "20260001010002\n20260001010002\n20260001010002\n");
}

// Another desk changes the student between look and press: told, and nothing is written; what neither of the two
// touched twice is kept by both.
TEST(StudentEdit, WhatAnotherDeskHasChangedIsToldAndLeftAlone) {
  const struct {
    Mode mode;
    const char *theirs, *typed;  // the columns that the other desk and this one change
    bool keyTyped, told;
  } cases[] = {{Mode::Modify, "bjmc", "sjhm", false, true},  // transferred meanwhile: the phone waits
               {Mode::Modify, "xm", "sjhm", false, true},   {Mode::Modify, "xh", "xm", true, true},
               {Mode::Modify, "sjhm", "sjhm", false, true}, {Mode::Modify, "yzbm", "sjhm", false, false},
               {Mode::Modify, "", "sjhm", false, true},     {Mode::Delete, "xm", "", false, true},
               {Mode::Delete, "yzbm", "", false, false},    {Mode::Delete, "", "", false, true}};
  for (const auto& one : cases) {
    SCOPED_TRACE(std::string(one.theirs) + "/" + one.typed);
    School school;
    school.enrol(School::number, "王小明");
    const bool deletes = one.mode == Mode::Delete;
    auto s = openedFor(school, one.mode);
    for (kit::Member* member : s->members())
      if (member->name == one.typed) static_cast<kit::Field*>(member)->type("13900000000");
    const store::Sql row = "select * from xs";
    if (*one.theirs) kit::setEach(school.store, row, one.theirs, "20260001010099");
    else kit::removeEach(school.store, row);
    const std::string before = school.everything();
    if (one.keyTyped) school.person.answer(true, Box::Ask, keyQuestion, "信息提示");
    if (deletes) askedToDelete(school, true);
    if (!one.told) school.told(deletes ? "选定记录已删除 ！        " : "选定记录已修改 ！       ");
    else if (*one.theirs) school.conflict("该生学籍资料");
    else school.gone();
    s->confirm.press();
    EXPECT_EQ(school.everything() == before, one.told);
    if (!deletes && !one.told) {
      EXPECT_EQ(school.stored("sjhm") + school.stored("yzbm"), "1390000000020260001010099");
    }
  }
}

TEST(StudentEdit, ARecordThatHasGoneBeforeItOpensIsTold) {
  School school;
  school.told("该生学籍资料已被其他计算机删除！     ");
  EXPECT_TRUE(opened<Formzctxs>(school, kit::Editing{Mode::Modify, 7})->closed());
}

TEST(StudentView, ShowsARecordAndKeepsItsNotes) {
  School school;
  school.enrol(School::number, "王小明");
  auto s = opened<Formzctxsll>(school, school.rowOf());
  EXPECT_EQ(s->csrq.text() + s->rxrq.text() + s->sfbz.text() + s->bz.text(), "2008年9月1日2024年9月2日1500.00    走读");
  s->bz.type("    走读，父亲接送\n");
  EXPECT_TRUE(s->mayClose());
  EXPECT_EQ(school.stored("bz"), "走读，父亲接送");
  school.student("2", "张三", "计算机11001班");
  EXPECT_EQ(opened<Formzctxsll>(school, school.rowOf("2"))->sfbz.text(), "0.00");
}

TEST(StudentView, NotesThatCannotBeSavedKeepTheWindowOpenOnce) {
  for (const bool gone : {true, false}) {
    School school;
    school.enrol(School::number, "王小明");
    auto s = opened<Formzctxsll>(school, school.rowOf());
    gone ? kit::removeEach(school.store, "select * from xs")
         : kit::setEach(school.store, "select * from xs", "bz", "另一台计算机写的");
    s->bz.type("转走读");
    for (const bool closes : {false, true}) {
      school.failed(gone ? "该生学籍资料已不存在，备注未能保存。"
                         : "“备注”已被其他计算机修改，请撤销后重新打开该记录再操作！");
      s->back.press();
      EXPECT_EQ(s->closed(), closes);
    }
    EXPECT_NE(school.stored("bz"), "转走读");
  }
}

}  // namespace
}  // namespace students
