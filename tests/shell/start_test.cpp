#include "shell/start.h"

#include <gmock/gmock.h>

#include "shell/console.h"
#include "shell/loading.h"
#include "shell/login.h"
#include "shell/splash.h"
#include "support/failing_engine.h"
#include "support/school.h"
#include "upkeep/first_run.h"
#include "upkeep/users.h"

namespace shell {
namespace {

using kit::Box;
using support::opened;
using support::School;

void addClerk(School& test, const std::string& name = "李强", const std::string& level = "一般操作员") {
  upkeep::addUser(test.store, name, level, "abc", test.clock.now());
}

void logIn(Formcsh5& s, const std::string& name = "李强", const std::string& password = " abc ") {
  s.yhxm.type(name);
  s.yhxm.enter();
  s.yhmm.type(password);
  s.yhmm.enter();
}

TEST(Splash, LeadsToTheFirstRunScreenWithoutUsersAndToTheLoginWithThem) {
  School empty;
  empty.desk.navigator.stand<Form1>(empty.desk);
  EXPECT_TRUE(empty.navigator.find<upkeep::Formyhxx4>());
  EXPECT_FALSE(empty.navigator.find<Form1>());
  EXPECT_EQ(platform::readFile(empty.desktop.programFolder() / "Screen.txt"), "1366\n");

  School test;
  addClerk(test);
  test.desk.navigator.stand<Form1>(test.desk);
  auto* splash = test.navigator.find<Form1>();
  ASSERT_TRUE(splash);
  splash->timer.tick();
  splash->timer.tick();
  EXPECT_FALSE(test.navigator.find<Formcsh5>());
  splash->timer.tick();
  EXPECT_TRUE(test.navigator.find<Formcsh5>());
  EXPECT_TRUE(splash->closed());
  EXPECT_NE(test.session.MainConnection.find(
                "\\mv_Database\\morvanegxgl.mdb;Jet OLEDB:Database Password='kestrelboatfield7416'"),
            std::string::npos);
  EXPECT_NE(test.session.ConfigConnection.find("\\配置文件\\morvanedjpz.mdb"), std::string::npos);
}

TEST(Splash, OffersWaysOnAfterAFault) {
  School test;
  addClerk(test);
  support::Failures failures(test.store);
  for (const bool chosen : {false, true}) {
    test.desktop.chosen = chosen;
    std::filesystem::create_directories(test.desktop.programFolder() / "mv_Database");
    failures.at(1, store::Fault::Busy);
    test.failed(support::Failures::words(store::Fault::Busy));
    auto s = opened<Form1>(test);
    failures.off();
    EXPECT_TRUE(s->retry.visible() && s->leave.visible());
    EXPECT_EQ(s->choose.visible(), chosen) << "a folder that was not chosen here cannot be chosen anew";
    EXPECT_FALSE(s->timer.running() || s->closed());
    s->retry.press();
    EXPECT_TRUE(s->timer.running());
    EXPECT_FALSE(s->retry.visible());
  }
  // A folder whose share is gone is no place for a new office.
  std::filesystem::remove_all(test.desktop.programFolder() / "mv_Database");
  std::filesystem::remove_all(test.desktop.programFolder() / "配置文件");
  test.failed("文件夹“" + test.desktop.programFolder().string() +
              "”中没有本系统的数据，请检查共享文件夹是否已经连接。");
  auto s = opened<Form1>(test);
  s->choose.press();
  EXPECT_TRUE(s->closed());
  EXPECT_TRUE(test.session.folder_wanted);
}

TEST(Login, ChecksInOrder) {
  School test;
  test.navigator.expect<upkeep::Formyhxx4>([&](upkeep::Formyhxx4& first) {
    addClerk(test);
    first.cancel.press();
  });
  auto s = opened<Formcsh5>(test);
  test.person.expect(Box::Warning, "  请选择用户名称 ！              ", "登录提示");
  s->login.press();
  s->yhxm.pick("李强");
  s->yhmm.enter();  // blank: nothing is pressed
  s->yhmm.type("wrong");
  test.person.expect(Box::Stop, " 密码不对，请重新输入 ！       ", "错误提示");
  s->login.press();
  EXPECT_EQ(s->yhmm.text(), "");
  s->second.tick();

  s->yhxm.type("李刚");  // another name after the choice: the chosen user's password no longer counts
  s->yhmm.type("abc");
  test.person.expect(Box::Stop, "用户不合法，系统将关闭 ！       ", "");
  s->login.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(test.count("select * from czjl"), 0);
}

TEST(Login, AWrongPasswordCostsAGrowingPause) {
  School test;
  addClerk(test);
  for (const char* name : {"王芳", "Lee"}) addClerk(test, name);
  auto s = opened<Formcsh5>(test);
  const auto pauseAfter = [&](const char* name) {
    test.person.expect(Box::Stop, " 密码不对，请重新输入 ！       ", "错误提示");
    logIn(*s, name, "wrong");
    logIn(*s, name);  // Enter does not get round the button
    int seconds = 0;
    for (; !s->login.enabled(); ++seconds) s->second.tick();
    EXPECT_FALSE(s->second.running());
    EXPECT_FALSE(s->wait.visible());
    return seconds;
  };
  std::vector<int> pauses;
  for (int i = 0; i < 7; ++i) pauses.push_back(pauseAfter("李强"));
  EXPECT_THAT(pauses, testing::ElementsAre(1, 2, 4, 8, 16, 30, 30));
  EXPECT_EQ(pauseAfter("王芳"), 1) << "each name for itself";
  EXPECT_EQ(pauseAfter("Lee"), 1);
  EXPECT_EQ(pauseAfter("lee"), 2) << "the same user, however the name is written";
  EXPECT_EQ(test.count("select * from czjl"), 0);
}

TEST(Login, AFaultInItsRowLeavesTheLoginUsable) {
  School test;
  addClerk(test);
  support::Failures failures(test.store);
  auto s = opened<Formcsh5>(test);
  s->yhxm.pick("李强");
  s->yhmm.type("abc");
  for (const long long call : {1, 4}) {
    failures.at(call, store::Fault::Busy);
    test.failed(support::Failures::words(store::Fault::Busy));
    s->login.press();
    failures.off();
    EXPECT_TRUE(s->panel.visible());
    EXPECT_EQ(test.session.SessionUser + test.session.SessionStart, "");
    EXPECT_FALSE(test.navigator.find<Formcsh1>());
  }
  s->login.press();
  EXPECT_EQ(test.session.SessionUser, "李强");
  EXPECT_TRUE(test.navigator.find<Formcsh1>());
}

TEST(Start, AProgramFolderThatCannotBeWrittenIsToldAndPassedOver) {
  School test;
  addClerk(test);
  const auto file = test.desktop.programFolder() / "Screen.txt";
  std::filesystem::create_directories(file);  // nobody can write a file there
  const std::string words = "无法写入文件：" + file.string() + "，请检查磁盘空间和写入权限。";
  test.failed(words);
  test.desk.navigator.stand<Form1>(test.desk);
  test.failed(words);
  for (int i = 0; i < 3; ++i) test.navigator.find<Form1>()->timer.tick();
  logIn(*test.navigator.find<Formcsh5>());
  EXPECT_EQ(test.value("select * from czjl", "jsjmc"), "收费一号机");
}

TEST(Login, SetsTheSessionUpAndMarksWhatThisComputerLeftOpen) {
  School test;
  addClerk(test);
  test.add("czjl", {{"yhxm", "甲"}, {"jsjmc", "收费一号机"}, {"kjsj", "2026-9-6 8:00:00"}, {"gjsj", ""}});
  test.add("czjl",
           {{"yhxm", "甲"}, {"jsjmc", "收费一号机"}, {"kjsj", "2026-9-5 8:00:00"}, {"gjsj", "2026-9-5 9:00:00"}});
  test.add("czjl", {{"yhxm", "乙"}, {"jsjmc", "收费二号机"}, {"kjsj", "2026-9-7 8:00:00"}, {"gjsj", ""}});
  for (const char* mark : {"one", "another of this name"})
    test.add("czjl", {{"yhxm", "丙"}, {"jsjmc", "收费一号机"}, {"jsjbs", mark}, {"gjsj", ""}});
  auto s = opened<Formcsh5>(test);
  logIn(*s);
  EXPECT_EQ(test.session.SessionUser, "李强");
  EXPECT_EQ(test.session.SessionLevel, "一般操作员");
  EXPECT_EQ(test.session.SessionStart, "2026-9-7 8:30:05");
  EXPECT_FALSE(test.session.Rights[31]);
  EXPECT_EQ(test.dump("czjl", "yhxm|jsjmc|kjsj|gjsj"),
            "甲|收费一号机|2026-9-6 8:00:00|强行中断\n甲|收费一号机|2026-9-5 8:00:00|2026-9-5 "
            "9:00:00\n乙|收费二号机|2026-9-7 "
            "8:00:00|\n丙|收费一号机||强行中断\n丙|收费一号机||\n李强|收费一号机|2026-9-7 8:30:05|\n");
  EXPECT_TRUE(test.navigator.find<Formcsh1>());
  EXPECT_FALSE(s->panel.visible());
}

TEST(Login, StepsThroughTheNinePictures) {
  School test;
  addClerk(test);
  const auto folder = test.desktop.programFolder() / "背景图";
  std::filesystem::create_directories(folder);
  for (int i = 1; i <= 9; ++i)
    platform::writeFile(folder / ("morvane" + std::to_string(i) + ".jpg"), "picture " + std::to_string(i));
  const struct {
    int stored;
    const char* shown;
    const char* stepped;
  } cases[] = {{3, "picture 3", "picture 4"}, {9, "picture 9", "picture 1"}, {0, "", ""}, {12, "", ""}};
  for (const auto& c : cases) {
    test.configure({{"tupan", c.stored}});
    auto s = opened<Formcsh5>(test);
    EXPECT_EQ(s->background.bytes(), c.shown);
    s->background.doubleClick();
    EXPECT_EQ(s->background.bytes(), c.stepped);
  }
}

TEST(Loading, OpensTheConsoleAndClosesTheLogin) {
  School test;
  addClerk(test, "王芳", "超级管理员");
  test.desk.navigator.stand<Formcsh5>(test.desk);
  logIn(*test.navigator.find<Formcsh5>(), "王芳");
  test.navigator.find<Formcsh1>()->timer.tick();
  ASSERT_TRUE(test.navigator.find<Formzct>());
  EXPECT_FALSE(test.navigator.find<Formcsh5>());
  EXPECT_FALSE(test.navigator.find<Formcsh1>());
  EXPECT_EQ(test.navigator.find<Formzct>()->title(), "澜岳学校综合管理系统 收费前台");
}

}  // namespace
}  // namespace shell
