// The console when the store or the computer fails: it goes on, and it can always be left.
#include "shell/console.h"
#include "support/failing_engine.h"
#include "support/school.h"

namespace shell {
namespace {

using kit::Box;
using store::Fault;
using support::Failures;
using support::opened;

struct FailingSchool : support::School {
  FailingSchool() {
    session.Rights.fill(true);
    session.auto_load_lists = true;
    student("1001", "王小明", "甲班");
    configure({{"jfjljz", true}});
  }
  Failures failures{store};
};

TEST(ConsoleFaults, AnOverviewIsEmptiedBeforeItsFrameCame) {
  FailingSchool school;
  auto s = opened<Formzct>(school);
  s->k2.press();
  school.person.answer(true, Box::AskStop, "您确认是要清空系统中的学籍资料吗？   ", "警告")
      .answer(true, Box::AskStop,
              "选择“是”继续；否则，点“否”撤销此操作！   "
              "\n\n学籍资料清空后不可恢复！并将同时清空系统中与学生有关的所有记录！",
              "再次警告")
      .expect(Box::Information, "系统中的学籍资料、交费记录等学生相关全部清空 ！        ", "信息提示");
  s->k9.press();
  EXPECT_EQ(school.count("select * from xs"), 0);
}

TEST(ConsoleFaults, TheLoadOnlyReadsAndTheConsoleStandsWhateverTheStoreSays) {
  FailingSchool school;
  school.configure({{"sfctsz", 1}});
  const long long saved = school.store.saved();
  {
    auto s = opened<Formzct>(school);
    EXPECT_TRUE(s->classes.opensFeeWindow.on());
  }
  EXPECT_EQ(school.store.saved(), saved) << "the tick that follows the setting was written back";
  school.session.SchoolName = "澜岳学校";
  school.failures.at(1, Fault::Unreadable, true);
  school.failed(Failures::words(Fault::Unreadable));
  auto s = opened<Formzct>(school);
  school.failures.off();
  EXPECT_EQ(s->title(), "澜岳学校综合管理系统 收费前台");
  EXPECT_TRUE(s->timer2.running());
  school.add("czjl", {{"yhxm", "甲"}, {"gjsj", ""}});
  bool goesOn = false;
  s->run([&] {  // while a screen stands in front
    s->timer2.tick();
    EXPECT_EQ(s->sharing.list.count(), 1);
    school.failures.at(1, Fault::Unreadable);
    school.failed(Failures::words(Fault::Unreadable));
    s->timer2.tick();
    goesOn = true;
  });
  EXPECT_TRUE(goesOn);
}

TEST(ConsoleFaults, LeavingAlwaysWorks) {
  const struct {
    bool storeFails, display;
    long long computerFails;
  } cases[] = {{true, true, 0}, {false, true, 1}, {false, true, 2}, {true, false, 1}};
  for (const auto& c : cases) {
    FailingSchool school;
    auto s = opened<Formzct>(school);
    const auto file = school.desktop.programFolder() / "Screen.txt";
    if (c.display) platform::writeFile(file, "800\n");
    school.person.answer(
        true, Box::Ask,
        "您确认是要退出本系统吗？   \n选择“是”将关闭本窗口\n或者选择“否”撤消此操作！                     ", "确认退出");
    if (c.storeFails) school.failures.at(1, Fault::Disconnected, true);
    if (c.storeFails) school.failed(Failures::words(Fault::Disconnected));
    if (c.computerFails) school.desktop.faults.at(c.computerFails);
    if (!c.display) school.failed("无法读取文件：" + file.string() + "，请检查文件是否存在、是否有读取权限。");
    const bool displayFails = c.display && c.computerFails == 1;
    if (displayFails) school.failed(support::PlatformFaults::words);
    school.person.answer(true, Box::Ask, "退出之前是否备份数据库？        ", "备份提示");
    if (c.computerFails && !displayFails) school.failed(support::PlatformFaults::words);
    s->k10.press();
    EXPECT_TRUE(s->closed());
  }
}

}  // namespace
}  // namespace shell
