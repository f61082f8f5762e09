#include "collection/batch_window.h"

#include <gmock/gmock.h>

#include "support/test_desk.h"

namespace {

using namespace collection;
using base::Money;
using kit::Box;
using support::opened;

constexpr const char* saved = "收费操作成功！打印收据吗？      ";

// 计算机1班 with the students named, each with a standard of 300, and an empty 会计1班.
struct ClassDesk : support::TestDesk {
  explicit ClassDesk(const std::vector<std::string>& names = {"王小明", "张三", "李四"}) {
    session.SessionUser = "李芳";
    session.SchoolName = "示范学校";
    add("bjzl", {{"bjdh", "12001"}, {"bjmc", "会计1班"}});
    add("bjzl", {{"bjdh", "11001"}, {"bjmc", "计算机1班"}});
    add("sfxmb", {{"sfxmbh", "01"}, {"sfxmmc", "书本费"}});
    add("sfxmb", {{"sfxmbh", "02"}, {"sfxmmc", "班费"}});
    add("sfbzb", {{"bjmc", "计算机1班"}, {"sfxmmc", "书本费"}, {"je", Money::yuan(300)}});
    int number = 0;
    for (const std::string& name : names) {
      const std::string last = std::to_string(++number);
      add("xs", {{"xh", "2026000" + last},
                 {"xm", name},
                 {"bjmc", "计算机1班"},
                 {"xtbh", "1100100" + last},
                 {"rxxs", "统招"}});
    }
  }
  void expectSaved(bool print = false) { person.answer(print, Box::AskInfo, saved, "操作提示"); }
};

// The screen with class, item and person chosen.
std::unique_ptr<Formzctsf7> chosen(ClassDesk& desk, const std::string& item = "书本费") {
  auto s = opened<Formzctsf7>(desk);
  s->sfxm.pick(item);
  s->classes.doubleClick(0);
  if (s->cells[0].shown()) s->person.type("赵老师");
  return s;
}

std::string cellsShown(const Formzctsf7& s) {
  std::string text;
  for (const BatchCell& cell : s.cells)
    if (cell.shown()) text += (cell.tick.on() ? "x " : "o ") + cell.tick.caption() + " " + cell.je.text() + "\n";
  return text;
}

TEST(BatchCollection, AClassPaysWithTheKeyboardAlone) {
  ClassDesk desk;
  desk.add("jfjl", {{"lsh", "202609070041"}, {"fpbh", "10000099"}, {"xq", "2026学年上学期"}, {"sftj", "*"}});
  auto s = opened<Formzctsf7>(desk);
  EXPECT_EQ(s->focused, &s->sfxm);
  s->sfxm.pick("书本费");
  s->sfxm.enter();
  EXPECT_EQ(s->focused, &s->xq);
  EXPECT_EQ(s->xq.text(), "2026学年上学期");
  s->xq.enter();
  s->jfrq.type("2026-8-31");
  s->jfrq.enter();
  EXPECT_EQ(s->focused, &s->classes);
  s->classes.doubleClick(0);
  EXPECT_EQ(s->students.title(), "计算机1班：3 名学生");
  EXPECT_EQ(s->standard.text(), "300.00");
  EXPECT_EQ(s->focused, &s->cells[0].je);
  s->tickAll.press();
  s->cells[0].je.enter();
  s->cells[1].je.type("250.5");
  s->cells[1].je.enter();
  s->cells[2].je.type("");
  EXPECT_EQ(cellsShown(*s), "x 王小明 300.00\nx 张三 250.5\no 李四 \n");
  EXPECT_EQ(s->summary.text(), "2 人，550.50 元");
  s->cells[2].je.enter();
  EXPECT_EQ(s->focused, &s->person);
  s->person.pick("张三");
  desk.expectSaved(true);
  s->person.enter();

  const std::string middle = "|计算机1班|2026学年上学期|书本费|2026-8-31|";
  const std::string end = "|李芳||集中收费|统招||" + desk.clock.now().plain() + "\n";
  store::RecordSet(desk.store, "select * from jfjl where lsh='202609070041'").removeAll();
  EXPECT_EQ(desk.dump("jfjl", "lsh|xh|xtbh|xm|bjmc|xq|sfxm|jfrq|fpbh|je|skr|sftj|bz|rxxs|jffs|bsh", "lsh"),
            "202609070042|20260001|11001001|王小明" + middle + "10000100|300" + end +
                "202609070043|20260002|11001002|张三" + middle + "10000101|250.5" + end);
  EXPECT_EQ(desk.count("select * from jfjl where skr='李芳' and sftj='' and sftj<>'*'"), 2);
  ASSERT_EQ(desk.printer.shown.size(), 1u);
  std::string printed;
  for (const platform::Mark& mark : desk.printer.shown[0].pages[0].marks)
    if (const auto* text = std::get_if<platform::Text>(&mark)) printed += text->text + "|";
  EXPECT_THAT(printed, testing::HasSubstr("|交费学生人数 2 人|"));
  EXPECT_THAT(printed, testing::HasSubstr("|大写：伍佰伍拾元伍角零分|"));
  EXPECT_EQ(cellsShown(*s) + s->sfxm.text() + s->person.text() + s->standard.text(), "");
  EXPECT_FALSE(s->closed());
  EXPECT_EQ(s->focused, &s->sfxm);
}

TEST(BatchCollection, TickAndAmountFollowEachOther) {
  ClassDesk desk;
  auto s = chosen(desk);
  BatchCell& cell = s->cells[0];
  const auto is = [&](bool on, const char* je) { return cell.tick.on() == on && cell.je.text() == je; };
  cell.tick.toggle();
  EXPECT_TRUE(is(true, "300.00"));
  cell.tick.toggle();
  EXPECT_TRUE(is(false, ""));
  cell.je.type("12");
  EXPECT_TRUE(is(true, "12"));
  cell.je.type("0.00");
  EXPECT_TRUE(is(false, ""));
  cell.je.type("12");
  cell.je.type("");
  EXPECT_TRUE(is(false, ""));
  s->sfxm.pick("班费");
  EXPECT_EQ(s->standard.text(), "") << "the class has no standard of this item";
  cell.tick.toggle();
  EXPECT_TRUE(is(true, ""));
  s->tickAll.press();
  EXPECT_EQ(cellsShown(*s), "x 王小明 \nx 张三 \nx 李四 \n");
  s->tickAll.press();
  EXPECT_EQ(cellsShown(*s), "o 王小明 \no 张三 \no 李四 \n");
}

TEST(BatchCollection, ATickWithoutAnAmountWritesNoRow) {
  ClassDesk desk;
  auto s = chosen(desk, "班费");
  s->cells[0].tick.toggle();
  s->cells[2].je.type("50");
  desk.expectSaved();
  s->confirm.press();
  EXPECT_EQ(desk.dump("jfjl", "xm|je|lsh|fpbh"), "李四|50|202609070001|10000001\n");
}

TEST(BatchCollection, OfTwoOfOneNameEachPaysTheirOwn) {
  ClassDesk desk({"张三", "王小明", "张三"});
  auto s = chosen(desk);
  s->tickAll.press();
  desk.expectSaved();
  s->confirm.press();
  EXPECT_EQ(desk.dump("jfjl", "xh|xm|lsh|fpbh", "lsh"),
            "20260001|张三|202609070001|10000001\n20260002|王小明|202609070002|10000002\n"
            "20260003|张三|202609070003|10000003\n");
}

TEST(BatchCollection, TheFirstNinetyOfALargeClassAreShown) {
  std::vector<std::string> names;
  for (int student = 1; student <= 95; ++student) names.push_back("学生" + std::to_string(student));
  ClassDesk desk(names);
  auto s = chosen(desk);
  EXPECT_EQ(s->students.title(), "计算机1班：95 名学生，只列出前 90 名");
  EXPECT_EQ(s->cells.back().tick.caption(), "学生90");
  s->tickAll.press();
  EXPECT_EQ(s->summary.text(), "90 人，27000.00 元");
  desk.expectSaved();
  s->confirm.press();
  EXPECT_EQ(desk.count("select * from jfjl"), 90);
  EXPECT_EQ(desk.value("select * from jfjl order by lsh desc", "lsh"), "202609070090");
  EXPECT_EQ(desk.value("select * from jfjl order by fpbh desc", "xm"), "学生90");
  s->classes.doubleClick(1);
  EXPECT_EQ(cellsShown(*s), "") << "the other class is empty";
}

TEST(BatchCollection, RefusesInOrderAndWritesNothing) {
  ClassDesk desk;
  auto s = opened<Formzctsf7>(desk);
  desk.person.expect(Box::Warning, "您至少要选中一个学生才可以进行收费操作      ", "操作提示");
  s->confirm.press();
  s->classes.doubleClick(0);
  const auto refused = [&](const char* text, const kit::Member& focus, const char* title = "操作提示") {
    desk.person.expect(Box::Stop, text, title);
    s->confirm.press();
    EXPECT_EQ(s->focused, &focus) << text;
  };
  const char* const noNumber = "收费金额应该是数字      ";
  const char* const blank = "学年学期等输入项不能为空      ";
  s->cells[0].je.type("300");
  s->cells[1].je.type("abc");  // not ticked, and still looked at
  refused(noNumber, s->cells[1].je);
  s->cells[1].je.type("99999999999999999999");
  refused(noNumber, s->cells[1].je);
  s->cells[1].je.type(" ");
  refused(blank, s->sfxm);
  s->sfxm.pick("书本费");
  s->xq.type(" ");
  refused(blank, s->xq);
  s->xq.type("2026学年下学期");
  refused(blank, s->person);
  s->person.type("赵老师");
  s->jfrq.type("2026-2-30");
  refused("日期格式不对,应该为 yyyy-m-d ！       ", s->jfrq, "错误提示");
  EXPECT_EQ(desk.count("select * from jfjl"), 0);
}

// Another computer has moved one student away since the class was chosen, and corrected the name of another.
TEST(BatchCollection, ToldWhoHasLeftTheClass) {
  ClassDesk desk;
  auto s = chosen(desk);
  s->tickAll.press();
  store::RecordSet(desk.store, "select * from xs where xm='张三'").setAll("bjmc", "会计1班");
  store::RecordSet(desk.store, "select * from xs where xm='李四'").setAll("xm", "李思");
  desk.person.expect(Box::Warning, "以下学生已不在该班，他们的收费没有保存：张三。请核对后另行收费。", "操作提示");
  desk.expectSaved();
  s->confirm.press();
  EXPECT_EQ(desk.dump("jfjl", "xm|lsh|fpbh", "lsh"), "王小明|202609070001|10000001\n李思|202609070002|10000002\n");

  // When nobody is left, nothing is told as collected.
  s = chosen(desk);
  s->cells[0].je.type("5");
  store::RecordSet(desk.store, "select * from xs").setAll("bjmc", "会计1班");
  desk.person.expect(Box::Warning, "以下学生已不在该班，他们的收费没有保存：王小明。请核对后另行收费。", "操作提示");
  s->confirm.press();
}

}  // namespace
