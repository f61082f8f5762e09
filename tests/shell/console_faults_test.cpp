// The console when the store or the computer fails: it goes on, and it can always be left.
#include <gmock/gmock.h>

#include "kit/fault.h"
#include "shell/console.h"
#include "students/student_edit.h"
#include "support/failing_engine.h"
#include "support/test_desk.h"

namespace shell {
namespace {

using kit::Box;
using store::Fault;
using support::Failures;
using support::opened;

struct School : support::TestDesk {
  explicit School(int students = 3) {
    session.Rights.fill(true);
    session.auto_load_lists = true;
    store::Unit unit(store);
    for (int i = 0; i < students; ++i) add("xs", {{"xh", std::to_string(1001 + i)}, {"xm", "王小明"}});
    unit.finish();
    set("jfjljz", true);
  }
  void set(std::string_view column, store::Value value) {
    store::RecordSet settings(store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
    settings.set(column, std::move(value));
    settings.update();
  }
  void expectFault(Fault fault) {
    person.expect(Box::Stop, Failures::words(fault) + "\n" + std::string(kit::nothingSaved), "错误提示");
  }
  Failures failures{store};
};

TEST(ConsoleFaults, ANoticeEndsWithTheEventThatShowedIt) {
  School school(603);
  auto s = opened<Formzct>(school);
  s->k2.press();
  s->timer1.tick();
  EXPECT_FALSE(school.progress.shown);
  s->students_overview.list.select(0);
  school.progress.texts.clear();
  school.navigator.expect<students::Formzctxs>();
  s->students_overview.button("修改").press();
  EXPECT_THAT(school.progress.texts, testing::Contains("正在加载学生王小明的信息 ..."));
  EXPECT_FALSE(school.progress.shown);
}

TEST(ConsoleFaults, AnOverviewThatDoesNotOpenIsToldAndOpensTheNextTime) {
  School school;
  auto s = opened<Formzct>(school);
  s->k2.press();
  school.failures.at(1, Fault::Busy);
  school.expectFault(Fault::Busy);
  s->timer1.tick();
  school.failures.off();
  EXPECT_FALSE(school.progress.shown);
  EXPECT_EQ(s->ConsolePanel, kit::Panel::None);
  s->k9.press();  // no panel is open: nothing is emptied
  s->k2.press();
  s->timer1.tick();
  EXPECT_EQ(s->students_overview.list.count(), 3);
}

TEST(ConsoleFaults, AnOverviewIsEmptiedBeforeItsFrameCame) {
  School school;
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
  School school;
  school.set("sfctsz", 1);
  const long long saved = school.store.saved();
  {
    auto s = opened<Formzct>(school);
    EXPECT_TRUE(s->classes.opensFeeWindow.on());
  }
  EXPECT_EQ(school.store.saved(), saved) << "the tick that follows the setting was written back";
  school.session.SchoolName = "澜岳学校";
  school.failures.at(1, Fault::Unreadable, true);
  school.expectFault(Fault::Unreadable);
  auto s = opened<Formzct>(school);
  school.failures.off();
  EXPECT_EQ(s->title(), "澜岳学校综合管理系统 收费前台");
  EXPECT_TRUE(s->timer2.running());
}

TEST(ConsoleFaults, LeavingAlwaysWorks) {
  const struct {
    bool storeFails, display;
    long long computerFails;
  } cases[] = {{true, true, 0}, {false, true, 1}, {false, true, 2}, {true, false, 1}};
  for (const auto& c : cases) {
    School school;
    auto s = opened<Formzct>(school);
    const auto file = school.desktop.programFolder() / "Screen.txt";
    if (c.display) platform::writeFile(file, "800\n");
    school.person.answer(
        true, Box::Ask,
        "您确认是要退出本系统吗？   \n选择“是”将关闭本窗口\n或者选择“否”撤消此操作！                     ", "确认退出");
    if (c.storeFails) school.failures.at(1, Fault::Disconnected, true);
    if (c.storeFails) school.expectFault(Fault::Disconnected);
    if (c.computerFails) school.desktop.faults.at(c.computerFails);
    const std::string outcome = "\n" + std::string(kit::nothingSaved);
    if (!c.display)
      school.person.expect(
          Box::Stop, "无法读取文件：" + file.string() + "，请检查文件是否存在、是否有读取权限。" + outcome, "错误提示");
    const bool displayFails = c.display && c.computerFails == 1;
    if (displayFails) school.person.expect(Box::Stop, support::PlatformFaults::words + outcome, "错误提示");
    school.person.answer(true, Box::Ask, "退出之前是否备份数据库？        ", "备份提示");
    if (c.computerFails && !displayFails)
      school.person.expect(Box::Stop, support::PlatformFaults::words + outcome, "错误提示");
    s->k10.press();
    EXPECT_TRUE(s->closed());
  }
}

}  // namespace
}  // namespace shell
