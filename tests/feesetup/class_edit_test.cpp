#include "feesetup/class_edit.h"

#include "edit_desk.h"
#include "feesetup/major_edit.h"

using namespace support;
using feesetup::Formszbjzl;
using feesetup::Formszzymc;
using kit::Box;
using kit::Mode;

namespace {

constexpr std::string_view classTables[] = {"xs",     "sfbzb",    "qfjl", "jfjl",  "cjb",
                                            "bys_xs", "bys_jfjl", "xxfk", "zsgl2", "tjs"};

struct ClassDesk : EditDesk {
  ClassDesk() {
    add("zymcb", {{"id", 1}, {"zybh", "11"}, {"zymc", "计算机"}});
    add("zymcb", {{"id", 2}, {"zybh", "12"}, {"zymc", "会计"}});
    add("bjzl", {{"zybh", "11"}, {"zymc", "计算机"}, {"bjdh", "11009"}, {"bjmc", "甲班"}, {"jsxm", "李老师"}});
    for (const auto table : classTables)
      for (const char* name : {"甲班", "乙班"}) add(table, {{"bjmc", name}});
  }
  std::string names(std::string_view table) { return dump(table, "bjmc"); }
};

TEST(MajorEdit, ProposesElevenFirstAndThenTheLastCodePlusOne) {
  EditDesk desk;
  for (const auto& [code, name] : {std::pair{"11", "计算机"}, {"12", "会计"}, {"13", "会计"}}) {
    auto s = desk.adding<Formszzymc>();
    EXPECT_EQ(s->zybh.text(), code);
    s->zymc.type(name);
    s->zymc.enter();  // Enter in the last field confirms
    EXPECT_TRUE(s->closed());
  }
  EXPECT_EQ(desk.dump("zymcb", "id|zybh|zymc|bsh"),
            "1|11|计算机|2026-9-7 8:30:05\n2|12|会计|2026-9-7 8:30:05\n3|13|会计|2026-9-7 8:30:05\n");
}

TEST(MajorEdit, RefusesInOrder) {
  EditDesk desk;
  auto s = desk.adding<Formszzymc>();
  desk.refuses(s->confirm, {&s->zybh, &s->zymc},
               {{"123456", times(31, "专"), "专业编号不能大于五个字符 ！　　"},
                {"x", times(31, "专"), "专业名称不能大于30个字符 ！　　"},
                {"x", "  ", "专业编号与专业名称均不能为空 ！　　"},
                {" ", "专", "专业编号与专业名称均不能为空 ！　　"},
                {"x", times(30, "专"), "请输入数字 ！     "}});
  EXPECT_EQ(desk.dump("zymcb", "zymc"), "");
}

TEST(MajorEdit, RenamesTheClassesColumnButNoClassNameAndNoCode) {
  ClassDesk desk;
  desk.add("bjzl", {{"zybh", "11"}, {"zymc", "计算机"}, {"bjdh", "11010"}, {"bjmc", "计算机11010班"}});
  auto s = desk.at<Formszzymc>(Mode::Modify, "select * from zymcb order by zybh");
  s->zybh.type("99");
  s->zymc.type("软件");
  desk.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示");
  desk.told("选定记录已修改 ！     ");
  s->confirm.press();
  EXPECT_EQ(desk.dump("zymcb", "zybh|zymc"), "11|软件\n12|会计\n");
  EXPECT_EQ(desk.dump("bjzl", "zymc|bjmc"), "软件|甲班\n软件|计算机11010班\n");
}

TEST(MajorEdit, DeletesNothingWhileItsGuardAsksForAColumnThatStudentsDoNotHave) {
  ClassDesk desk;
  auto s = desk.at<Formszzymc>(Mode::Delete, "select * from zymcb order by zybh");
  desk.person.answer(true, Box::Ask, "您确认要删除选定记录吗？   ", "删除提示");
  std::string fault;
  try {
    store::RecordSet(desk.store, "select * from xs where left(stbh,2)='11'").empty();
  } catch (const store::StoreError& error) {
    EXPECT_EQ(error.fault, store::Fault::NoSuchColumn);
    fault = error.what();
  }
  desk.refused(fault);
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  EXPECT_EQ(desk.dump("zymcb", "zymc"), "计算机\n会计\n");
}

TEST(MajorEdit, RenumbersInTheOrderOfTheCodes) {
  EditDesk desk;
  desk.add("zymcb", {{"id", 3}, {"zybh", "13"}});
  desk.add("zymcb", {{"id", 1}, {"zybh", "11"}});
  feesetup::renumberMajors(desk.store);
  EXPECT_EQ(desk.dump("zymcb", "id|zybh"), "2|13\n1|11\n");
}

TEST(ClassEdit, ProposesCodeAndNameFromTheMajor) {
  ClassDesk desk;
  auto s = desk.adding<Formszbjzl>();
  s->zymc.pick("会计");
  EXPECT_EQ(s->bjmc.text(), "会计12001班");
  EXPECT_EQ(s->focused, &s->bjmc);
  s->zymc.pick("计算机");
  EXPECT_EQ(s->bjmc.text(), "计算机11010班");
  s->jsxm.type("王老师");
  s->jsxm.enter();
  EXPECT_EQ(desk.dump("bjzl", "zybh|zymc|bjdh|bjmc|jsxm|bsh", "bjdh"),
            "11|计算机|11009|甲班|李老师|\n11|计算机|11010|计算机11010班|王老师|2026-9-7 8:30:05\n");
}

TEST(ClassEdit, RefusesInOrderAndARepeatedNameOnAdding) {
  ClassDesk desk;
  auto s = desk.adding<Formszbjzl>();
  const std::string many = times(51, "长");
  desk.refuses(s->confirm, {&s->zymc, &s->bjdh, &s->bjmc, &s->jsxm},
               {{many, "12345678901", many, many, "专业名称不能大于30个字符 ！　　"},
                {"会计", "12345678901", many, many, "班级代号不能大于10个字符 ！　　"},
                {"会计", "x", many, many, "班级名称不能大于50个字符 ！　　"},
                {"会计", "x", "", many, "教师姓名不能大于20个字符 ！　　"},
                {"会计", "x", " ", "", "专业名称、班级代号及班级名称三项不能为空 ！　　"},
                {"会计", "x", "丙班", "", "班级代号应该是数字 ！     "}});
  s->bjdh.type("12001");
  s->bjmc.type("甲班");
  desk.told("系统中已存在相同的班级名称 ！     ");
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  EXPECT_EQ(desk.names("bjzl"), "甲班\n");
}

TEST(ClassEdit, RenamesInAllTenTablesAfterAWarning) {
  ClassDesk desk;
  auto s = desk.at<Formszbjzl>(Mode::Modify, "select * from bjzl order by bjdh");
  EXPECT_FALSE(s->zymc.enabled());
  s->bjmc.type("丙班");
  for (const bool yes : {false, true}) {
    desk.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示");
    desk.person.answer(yes, Box::AskStop, "班级名称被修改，这将修改系统中所有该班级的信息，您确认继续吗？   ", "警告");
    if (yes) desk.told("选定记录已修改 ！     ");
    s->confirm.press();
    const std::string name = yes ? "丙班" : "甲班";
    EXPECT_EQ(desk.dump("bjzl", "zybh|bjmc"), "11|" + name + "\n");
    for (const auto table : classTables) EXPECT_EQ(desk.names(table), name + "\n乙班\n") << table;
  }
  EXPECT_TRUE(s->closed());
}

TEST(ClassEdit, ChangesTheRestWithoutAWarning) {
  ClassDesk desk;
  auto s = desk.at<Formszbjzl>(Mode::Modify, "select * from bjzl order by bjdh");
  s->jsxm.type("赵老师");
  desk.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示");
  desk.told("选定记录已修改 ！     ");
  s->confirm.press();
  EXPECT_EQ(desk.dump("bjzl", "zybh|bjdh|bjmc|jsxm"), "11|11009|甲班|赵老师\n");
}

TEST(ClassEdit, DeletesFromAllTenTablesAfterTwoWarnings) {
  ClassDesk desk;
  auto s = desk.at<Formszbjzl>(Mode::Delete, "select * from bjzl order by bjdh");
  EXPECT_FALSE(s->bjmc.enabled());
  for (const bool yes : {false, true}) {
    desk.person.answer(true, Box::AskStop, "您确认要删除选定的班级记录吗？   ", "警告");
    desk.person.answer(yes, Box::AskStop,
                       "删除班级将同时删除与该班级有关的所有记录，包括学籍资料、交费记录等，您确认继续吗？    ",
                       "再次警告");
    if (yes) desk.told("选定记录已删除 ！     ");
    s->confirm.press();
    EXPECT_EQ(desk.names("bjzl"), yes ? "" : "甲班\n");
    for (const auto table : classTables) EXPECT_EQ(desk.names(table), yes ? "乙班\n" : "甲班\n乙班\n") << table;
  }
}

}  // namespace
