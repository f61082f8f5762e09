// The setup's edits of majors, classes, items and enrolment forms, by one desk and by two.
#include "feesetup/class_edit.h"
#include "feesetup/enrolment_form_edit.h"
#include "feesetup/fee_item_edit.h"
#include "feesetup/major_edit.h"
#include "kit/validation.h"
#include "register/classes.h"
#include "support/school.h"

using namespace support;
using namespace feesetup;
using kit::Box;
using kit::Mode;
using store::Sql;

namespace {

constexpr std::string_view classTables[] = {"xs",     "sfbzb",    "qfjl", "jfjl",  "cjb",
                                            "bys_xs", "bys_jfjl", "xxfk", "zsgl2", "tjs"};
const char* const sure = "您确认要修改记录吗？  ";
const char* const form = "修改当前记录将同时修改所有学生的该入学形式名称，您确认继续吗 ？    ";
const char* const newItemName = "收费项目名称已被修改，这将修改系统中的所有该项目！   \n修改中请不要做其它操作！ ";

// One of each, with all that copies its name, and a second class beside it.
struct SetupSchool : School {
  SetupSchool() {
    add("zymcb", {{"id", 1}, {"zybh", "11"}, {"zymc", "计算机"}});
    add("zymcb", {{"id", 2}, {"zybh", "12"}, {"zymc", "会计"}});
    schoolClass("11009", "甲班", "计算机");
    for (const auto table : classTables)
      for (const char* name : {"甲班", "乙班"}) add(table, {{"bjmc", name}});
    item("105", "书费");
    item("103", "学费");
    for (const char* table : {"jfjl", "qfjl"}) add(table, {{"sfxm", "学费"}});
    add("sfbzb", {{"sfxmmc", "学费"}, {"sfxmbh", "103"}});
    add("rxxs", {{"rxxs", "统招"}});
    student("1", "王小明", "丁班");
    formStandard("统招", "学费", {});
  }
};

TEST(MajorEdit, ProposesElevenFirstThenTheNextAndTakesARepeatedName) {
  School school;
  for (const auto& [code, name] : {std::pair{"11", "计算机"}, {"12", "会计"}, {"13", "会计"}}) {
    auto s = school.adding<Formszzymc>();
    EXPECT_EQ(s->zybh.text(), code);
    s->zymc.type(name);
    s->zymc.enter();  // Enter in the last field confirms
    EXPECT_TRUE(s->closed());
  }
  EXPECT_EQ(school.dump("zymcb", "id|zybh|zymc|bsh"),
            "1|11|计算机|2026-9-7 8:30:05\n2|12|会计|2026-9-7 8:30:05\n3|13|会计|2026-9-7 8:30:05\n");
  renumberMajors(school.store);
  EXPECT_EQ(school.dump("zymcb", "id|zybh"), "1|11\n2|12\n3|13\n");
}

TEST(MajorEdit, RenamesInTheClassesAndKeepsTheCode) {
  SetupSchool school;
  auto s = school.at<Formszzymc>(Mode::Modify, "select * from zymcb");
  s->zybh.type("99");
  s->zymc.type("软件");
  school.person.answer(true, Box::Ask, sure, "修改提示");
  school.told("选定记录已修改 ！     ");
  s->confirm.press();
  EXPECT_EQ(school.dump("zymcb", "zybh|zymc"), "11|软件\n12|会计\n");
  EXPECT_EQ(school.dump("bjzl", "zymc|bjmc"), "软件|甲班\n");
}

TEST(MajorEdit, DeletesNothingWhileItsGuardAsksForAColumnThatStudentsDoNotHave) {
  SetupSchool school;
  auto s = school.at<Formszzymc>(Mode::Delete, "select * from zymcb");
  school.person.answer(true, Box::Ask, "您确认要删除选定记录吗？   ", "删除提示");
  school.failed("数据表“xs”中没有“stbh”这一栏！");
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  EXPECT_EQ(school.dump("zymcb", "zymc"), "计算机\n会计\n");
}

TEST(ClassEdit, ProposesCodeAndNameFromTheMajorAndRefusesARepeatedName) {
  SetupSchool school;
  auto s = school.adding<Formszbjzl>();
  s->zymc.pick("会计");
  EXPECT_EQ(s->bjmc.text(), "会计12001班");
  s->zymc.pick("计算机");
  EXPECT_EQ(s->bjmc.text(), "计算机11010班");
  EXPECT_EQ(s->focused, &s->bjmc);
  s->bjmc.type("甲班");
  school.told("系统中已存在相同的班级名称 ！     ");
  s->confirm.press();
  EXPECT_EQ(s->focused, &s->bjmc);
  s->bjmc.type("乙班");
  s->jsxm.type("王老师");
  s->jsxm.enter();
  EXPECT_EQ(school.dump("bjzl", "zybh|zymc|bjdh|bjmc|jsxm|bsh"),
            "11|计算机|11009|甲班||\n11|计算机|11010|乙班|王老师|2026-9-7 8:30:05\n");
}

TEST(ClassEdit, RenamesAndDeletesInAllTenTablesAfterTwoQuestions) {
  for (const Mode mode : {Mode::Modify, Mode::Delete}) {
    const bool renames = mode == Mode::Modify;
    SetupSchool school;
    const auto names = [&](std::string_view table) {
      return school.dump(table, "bjmc").substr(0, std::string("甲班\n乙班\n").size());
    };
    auto s = school.at<Formszbjzl>(mode, "select * from bjzl");
    EXPECT_FALSE(s->zymc.enabled());
    if (renames) s->bjmc.type("丙班");
    for (const bool yes : {false, true}) {
      if (renames)
        school.person.answer(true, Box::Ask, sure, "修改提示")
            .answer(yes, Box::AskStop, "班级名称被修改，这将修改系统中所有该班级的信息，您确认继续吗？   ", "警告");
      else
        school.person.answer(true, Box::AskStop, "您确认要删除选定的班级记录吗？   ", "警告")
            .answer(yes, Box::AskStop,
                    "删除班级将同时删除与该班级有关的所有记录，包括学籍资料、交费记录等，您确认继续吗？    ",
                    "再次警告");
      if (yes) school.told(renames ? "选定记录已修改 ！     " : "选定记录已删除 ！     ");
      s->confirm.press();
      EXPECT_EQ(school.dump("bjzl", "bjmc"), !yes ? "甲班\n" : renames ? "丙班\n" : "");
      for (const auto table : classTables)
        EXPECT_TRUE(names(table).starts_with(!yes ? "甲班\n乙班\n" : renames ? "丙班\n乙班\n" : "乙班\n")) << table;
    }
  }
}

TEST(FeeItemEdit, ProposesTheLastStoredCodePlusOneAndRefusesInOrder) {
  School empty;
  EXPECT_EQ(empty.adding<Formszsfxm>()->sfxmbh.text(), "101");
  SetupSchool school;
  auto s = school.adding<Formszsfxm>();
  EXPECT_EQ(s->sfxmbh.text(), "104");
  school.refuses(s->confirm, {&s->sfxmbh, &s->sfxmmc},
                 {{"1011", times(31, "费"), "收费项目编号为3个字符,您让它默认就可以 ！　　"},
                  {"abc", times(31, "费"), "收费项目名称不能大于30个字符 ！　　"},
                  {"abc", " ", "收费项目编号与收费项目名称均不能为空 ！　　"},
                  {"abc", "杂'费", "请输入数字 ！     "}});
  s->sfxmbh.type("104");
  s->sfxmmc.type("学费");
  school.told("系统中已存在相同的收费项目名称 ！     ");
  s->confirm.press();
  s->sfxmmc.type("  住宿费 ");
  s->sfxmmc.enter();
  EXPECT_EQ(school.dump("sfxmb", "sfxmbh|sfxmmc"), "105|书费\n103|学费\n104|住宿费\n");
}

TEST(FeeItemEdit, ChangesNamesAndOrder) {
  const struct {
    const char *code, *name, *items, *copies;
    bool asksAgain, yes;
  } cases[] = {
      {"105", "学费", "103|书费\n105|学费\n", "学费", false, true},  // two items swap their codes
      {"109", "学费", "105|书费\n109|学费\n", "学费", false, true},
      {"103", "学费", "105|书费\n103|学费\n", "学费", false, true},       // nothing changed, told all the same
      {"105", "学杂费", "105|书费\n105|学杂费\n", "学杂费", true, true},  // name and code at once: no swap
      {"105", "学杂费", "105|书费\n103|学费\n", "学费", true, false},     // nothing written, told all the same
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(std::string(one.code) + one.name);
    SetupSchool school;
    auto s = school.at<Formszsfxm>(Mode::Modify, "select * from sfxmb order by sfxmbh");
    s->sfxmbh.type(one.code);
    s->sfxmmc.type(one.name);
    school.person.answer(true, Box::Ask, sure, "修改提示");
    if (one.asksAgain) school.person.answer(one.yes, Box::Ask, newItemName, "修改提示");
    school.told("选定记录已修改 ！     ");
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(school.dump("sfxmb", "sfxmbh|sfxmmc"), one.items);
    EXPECT_EQ(school.value("select * from sfbzb where sfxmbh='103'", "sfxmmc"), one.copies);
    for (const char* table : {"jfjl", "qfjl"})
      EXPECT_EQ(school.value(Sql::table(table) + " where sfxm<>''", "sfxm"), one.copies) << table;
    EXPECT_EQ(school.dump("sfbzbrxxs", "sfxmmc"), "学费\n") << "left out of the renaming";
  }
}

TEST(EnrolmentFormEdit, RenamesForStudentsOnlyAndGuardsTheDelete) {
  SetupSchool school;
  auto add = school.adding<Formszrxxs>();
  school.refused("录入项不能为空！        ");
  add->confirm.press();
  add->rxxs.type("统招");
  school.told("存在相同的记录！        ");
  add->confirm.press();
  add->rxxs.type("成教");
  school.told("信息录入成功！        ");
  add->rxxs.enter();
  EXPECT_EQ(school.dump("rxxs", "rxxs"), "统招\n成教\n");

  auto modify = school.at<Formszrxxs>(Mode::Modify, "select * from rxxs");
  modify->rxxs.type("自考");
  school.person.answer(true, Box::Ask, form, "修改提示");
  school.told("信息修改成功！        ");
  modify->confirm.press();
  EXPECT_EQ(school.dump("rxxs", "rxxs"), "自考\n成教\n");
  EXPECT_EQ(school.value("select * from xs where xh='1'", "rxxs"), "自考");
  EXPECT_EQ(school.dump("sfbzbrxxs", "rxxs"), "统招\n");

  auto remove = school.at<Formszrxxs>(Mode::Delete, "select * from rxxs");
  school.told("该入学形式已被系统引用，您不能删除它！        ");
  remove->confirm.press();
  kit::removeEach(school.store, "select * from xs");
  school.told("信息删除成功！        ");
  remove->confirm.press();
  EXPECT_EQ(school.dump("rxxs", "rxxs"), "成教\n");
}

// Another desk renames the record, or deletes it, while it stands open here: told, and nothing is written.
template <class S>
void refusesWhatChangedMeanwhile(const Sql& rows, std::string_view column, kit::Field S::*name,
                                 const std::vector<std::pair<Box, std::string>>& changing,
                                 const std::vector<std::pair<Box, std::string>>& deleting) {
  for (const Mode mode : {Mode::Modify, Mode::Delete})
    for (const bool renamed : {true, false}) {
      SetupSchool school;
      if (column == "rxxs") kit::setEach(school.store, "select * from xs", "rxxs", "");
      auto s = school.at<S>(mode, rows);
      const std::string label = (s.get()->*name).label();
      if (mode == Mode::Modify) (s.get()->*name).type("新名");
      store::RecordSet other(school.store, rows);
      if (renamed) kit::writeRow(other, {{column, "别名"}});
      else other.remove();
      const std::string before = school.everything();
      for (const auto& [box, text] : mode == Mode::Modify ? changing : deleting)
        school.person.answer(true, box, text,
                             box == Box::Ask                ? (mode == Mode::Modify ? "修改提示" : "删除提示")
                             : text.starts_with("删除班级") ? "再次警告"
                                                            : "警告");
      renamed ? school.conflict(label) : school.gone();
      s->confirm.press();
      EXPECT_FALSE(s->closed());
      EXPECT_EQ(school.everything(), before) << s->name << static_cast<int>(mode) << renamed;
    }
}

TEST(TwoDesks, ARecordThatWasRenamedOrDeletedIsLeftAlone) {
  const std::pair<Box, std::string> mayChange{Box::Ask, sure}, mayDelete{Box::Ask, "您确认要删除选定记录吗？   "};
  refusesWhatChangedMeanwhile<Formszsfxm>("select * from sfxmb order by sfxmbh", "sfxmmc", &Formszsfxm::sfxmmc,
                                          {mayChange, {Box::Ask, newItemName}}, {mayDelete});
  refusesWhatChangedMeanwhile<Formszrxxs>("select * from rxxs", "rxxs", &Formszrxxs::rxxs, {{Box::Ask, form}}, {});
  refusesWhatChangedMeanwhile<Formszbjzl>(
      "select * from bjzl", "bjmc", &Formszbjzl::bjmc,
      {mayChange, {Box::AskStop, "班级名称被修改，这将修改系统中所有该班级的信息，您确认继续吗？   "}},
      {{Box::AskStop, "您确认要删除选定的班级记录吗？   "},
       {Box::AskStop, "删除班级将同时删除与该班级有关的所有记录，包括学籍资料、交费记录等，您确认继续吗？    "}});
}

// What this desk did not touch stays as the other one left it; the cascade runs only for a new name.
TEST(TwoDesks, OnlyWhatWasChangedIsWritten) {
  SetupSchool school;
  auto s = school.at<Formszbjzl>(Mode::Modify, "select * from bjzl");
  s->jsxm.type("赵老师");
  school::renameClass(school.store, "甲班", "新甲班");
  store::RecordSet other(school.store, "select * from bjzl");
  kit::writeRow(other, {{"bjmc", "新甲班"}, {"bjdh", "11019"}});
  school.person.answer(true, Box::Ask, sure, "修改提示");
  school.told("选定记录已修改 ！     ");
  s->confirm.press();
  EXPECT_EQ(school.dump("bjzl", "bjdh|bjmc|jsxm"), "11019|新甲班|赵老师\n");
  EXPECT_EQ(school.count("select * from jfjl where bjmc='新甲班'"), 1);
}

// Such a name would be found, renamed and deleted by nobody.
TEST(Names, WithAnApostropheAreRefusedWhereTheyAreEntered) {
  SetupSchool school;
  const std::string before = school.everything();
  const auto refuses = [&](auto& screen, kit::Field& name) {
    name.type("甲'名");
    school.refused(kit::quoteRefused);
    screen.confirm.press();
    EXPECT_EQ(screen.focused, &name);
    EXPECT_EQ(school.everything(), before);
  };
  auto major = school.adding<Formszzymc>();
  refuses(*major, major->zymc);
  auto item = school.adding<Formszsfxm>();
  refuses(*item, item->sfxmmc);
  auto form = school.adding<Formszrxxs>();
  refuses(*form, form->rxxs);
  auto schoolClass = school.at<Formszbjzl>(Mode::Modify, "select * from bjzl");
  refuses(*schoolClass, schoolClass->bjmc);

  school.item("106", "旧'费");  // from before the rule
  auto old = school.at<Formszsfxm>(Mode::Delete, "select * from sfxmb where sfxmbh='106'");
  school.person.answer(true, Box::Ask, "您确认要删除选定记录吗？   ", "删除提示");
  school.told("选定记录已删除 ！     ");
  old->confirm.press();
  EXPECT_EQ(school.everything(), before);
}

}  // namespace
