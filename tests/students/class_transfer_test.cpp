#include "students/class_transfer.h"

#include "base/text.h"
#include "school.h"
#include "students/class_transfer_window.h"

namespace students {
namespace {

using kit::Box;
using support::opened;

struct TwoClasses : School {
  // A student with a row in every table that copies one.
  void place(const std::string& xh, const std::string& xm, const std::string& bjmc, const std::string& xtbh) {
    student(xh, xm, bjmc, xtbh);
    for (const std::string_view table : school::studentTables) copyOf(table, xh, xm, bjmc, xtbh);
  }
  std::vector<Mover> movers(const std::vector<std::string>& numbers) {
    std::vector<Mover> all;
    for (const std::string& xh : numbers) all.push_back({rowOf(xh), stored("xm", xh)});
    return all;
  }
  std::string classBook() { return dump("xs", "xh|xm|bjmc|zymc|xtbh", "xh"); }
};

// Of two of one name the one who was ticked moves; rows keyed without a number move with a name that stands once.
TEST(ClassTransfer, MovesTheTickedStudentsAndAllThatCarriesTheClass) {
  TwoClasses school;
  school.place("1", "张三", computing, "11001001");
  school.place("2", "张三", computing, "11001002");
  school.place("3", "李四", computing, "11001003");
  school.copyOf("jfjl", "", "李四", computing, "11001003");
  school.place("9", "李四", accounting, "01001041");
  transferStudents(school.store, computing, accounting, school.movers({"3", "2"}));
  EXPECT_EQ(school.classBook(),
            "1|张三|计算机11001班|计算机|11001001\n2|张三|会计01001班|会计|1001043\n"
            "3|李四|会计01001班|会计|1001042\n9|李四|会计01001班|计算机|01001041\n");
  for (const std::string_view table : school::studentTables)
    EXPECT_EQ(school.dump(table, "xh|bjmc|xtbh", "xh"),
              std::string(table == "jfjl" ? "|会计01001班|1001042\n" : "") +
                  "1|计算机11001班|11001001\n2|会计01001班|1001043\n3|会计01001班|1001042\n"
                  "9|会计01001班|01001041\n")
        << table;
}

// Another desk renames or deletes the to-class, or takes one of the ticked students out of the from-class, while the
// screen stands: nobody moves, and the screen shows the class as it is now.
TEST(ClassTransfer, WhatAnotherDeskHasChangedIsToldAndNobodyMoves) {
  const std::string left = "学生“张三”已不在“计算机11001班”", noClass = "班级“会计01001班”已被其他计算机改名或删除";
  const struct {
    std::string told;
    store::Sql rows;
    const char* column;  // null: the row is deleted
  } cases[] = {{noClass, "select * from bjzl where bjdh='01001'", "bjmc"},
               {noClass, "select * from bjzl where bjdh='01001'", nullptr},
               {left, "select * from xs where xh='2'", "bjmc"},
               {left, "select * from xs where xh='2'", "xm"},
               {left, "select * from xs where xh='2'", nullptr}};
  for (const auto& one : cases) {
    TwoClasses school;
    school.place("1", "王小明", computing, "11001001");
    school.place("2", "张三", computing, "11001002");
    auto s = opened<Formtb>(school);
    s->fromClass.pick(computing);
    s->toClass.pick(accounting);
    s->tickAll.press();
    one.column ? kit::setEach(school.store, one.rows, one.column, "另") : kit::removeEach(school.store, one.rows);
    const std::string before = school.everything();
    s->confirm.press();
    school.failed(one.told + "，没有调班，请重新选择班级和学生后再操作！");
    s->timer.tick();
    EXPECT_EQ(school.everything(), before);
    EXPECT_TRUE(s->confirm.enabled() && !s->boxes[0].on() && !school.progress.shown);
    EXPECT_EQ(s->boxes[1].visible(), one.told == noClass || (one.column && one.column == std::string_view("xm")));
  }
}

TEST(ClassTransfer, WithoutAToClassTheValuesAreBlank) {
  TwoClasses school;
  school.place("1", "王小明", computing, "11001001");
  transferStudents(school.store, computing, "", school.movers({"1"}));
  EXPECT_EQ(school.classBook(), "1|王小明|||\n");
  EXPECT_EQ(school.dump("qfjl", "xh|xm|bjmc|xtbh"), "1|王小明||\n");
}

TEST(ClassTransfer, APersonTicksAndMovesThem) {
  TwoClasses school;
  for (const char* name : {"王小明", "张三", "李四"})
    school.place(std::to_string(school.count("select * from xs") + 1), name, computing, "11001001");
  auto s = opened<Formtb>(school);
  s->fromClass.pick(computing);
  EXPECT_EQ(s->students.title(), "3 名学生");
  s->toClass.pick(accounting);
  EXPECT_EQ(s->zymc.text() + "|" + s->xtbh.text(), "会计|01001001");
  s->tickAll.press();
  EXPECT_EQ(s->tickAll.caption(), "全不选");
  s->boxes[1].toggle();
  s->confirm.press();
  EXPECT_EQ(school.count(store::Sql("select * from xs where bjmc='") + std::string(accounting) + "'"), 0)
      << "nothing moves before the notice has been painted";
  EXPECT_FALSE(s->confirm.enabled());
  school.person.expect(Box::Information, "调班操作成功           ", "信息提示");
  s->timer.tick();
  s->timer.tick();
  EXPECT_EQ(school.dump("xs", "xm|bjmc|xtbh", "xh"),
            "王小明|会计01001班|01001001\n张三|计算机11001班|11001001\n李四|会计01001班|1001002\n");
  EXPECT_EQ(
      base::join(school.progress.texts, "/"),
      "正在加载相关设置，请稍等.../正在处理学生王小明的相关信息,请稍等 .../正在处理学生李四的相关信息,请稍等 ...");
  EXPECT_FALSE(school.progress.shown);
  EXPECT_TRUE(s->confirm.enabled());
  EXPECT_EQ(s->boxes[0].caption(), "张三");
  EXPECT_FALSE(s->boxes[0].on() || s->boxes[1].visible());
  EXPECT_EQ(s->tickAll.caption(), "全选");
  EXPECT_EQ(s->xtbh.text(), "1001003");
}

TEST(ClassTransfer, TheSameClassIsRefusedWhicheverIsChosenLast) {
  TwoClasses school;
  auto s = opened<Formtb>(school);
  const auto refused = [&](kit::Field& last) {
    school.person.expect(Box::Stop, "调班操作不能选择同一个班级！    ", "错误提示");
    last.pick(computing);
    EXPECT_EQ(s->toClass.text() + s->zymc.text() + s->xtbh.text(), "");
  };
  s->fromClass.pick(computing);
  refused(s->toClass);
  s->fromClass.pick(accounting);
  s->toClass.pick(computing);
  refused(s->fromClass);
}

TEST(ClassTransfer, TheRestOfALargeClassWaitsUntilOthersHaveLeft) {
  TwoClasses school;
  for (int student = 1; student <= 93; ++student)
    school.add("xs", {{"xm", "学生" + std::to_string(student)}, {"bjmc", computing}});
  auto s = opened<Formtb>(school);
  s->fromClass.pick(computing);
  s->toClass.pick(accounting);
  EXPECT_EQ(s->students.title(), "93 名学生，只列出前 90 名");
  s->tickAll.press();
  s->confirm.press();
  school.person.expect(Box::Information, "调班操作成功           ", "信息提示");
  s->timer.tick();
  EXPECT_EQ(s->boxes[2].caption(), "学生93");
  EXPECT_FALSE(s->boxes[3].visible());
  EXPECT_EQ(school.value("select * from xs where xm='学生90'", "xtbh"), "1001090");
}

// Nothing asks before a transfer, so Enter only walks on.
TEST(ClassTransfer, EnterWalksToTheConfirmButtonAndNoFurther) {
  TwoClasses school;
  school.place("1", "王小明", computing, "11001001");
  auto s = opened<Formtb>(school);
  s->fromClass.pick(computing);
  s->fromClass.enter();
  EXPECT_EQ(s->focused, &s->toClass);
  s->toClass.enter();
  EXPECT_EQ(s->focused, &s->boxes[0]);
  s->moveOnFrom(s->boxes[0]);
  EXPECT_EQ(s->focused, &s->tickAll);
  EXPECT_FALSE(s->timer.running());
}

}  // namespace
}  // namespace students
