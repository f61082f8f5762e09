#include "upkeep/users.h"

#include "kit/validation.h"
#include "support/school.h"
#include "upkeep/first_run.h"
#include "upkeep/password.h"
#include "upkeep/password_change.h"
#include "upkeep/school_name.h"
#include "upkeep/user_edit.h"
#include "upkeep/user_list.h"
#include "upkeep/user_rights.h"

namespace upkeep {
namespace {

using kit::Box;
using support::opened;
using support::TestDesk;

std::string storedPassword(TestDesk& test, const std::string& name) {
  return test.value(store::Sql("select * from yhxx where yhxm='") + name + "'", "yhmm");
}

TEST(FirstRun, BlankEntryIsRefusedThenTheFirstUserMayDoEverything) {
  TestDesk test;
  auto s = opened<Formyhxx4>(test);
  s->yhxm.type("王芳");
  s->yhmm.type("   ");
  test.person.expect(Box::Stop, "输入项不能为空！     ", "操作提示");
  s->confirm.press();
  s->yhxm.type("王'芳");  // nobody of that name could ever log in
  s->yhmm.type("1");
  test.person.expect(Box::Stop, kit::quoteRefused, "错误提示");
  s->confirm.press();
  EXPECT_EQ(test.count("select * from yhxx"), 0);

  s->yhxm.type("王芳");
  s->yhmm.type(" 123456 ");
  test.person.expect(Box::Information, "设置完成！系统默认您为“超级管理员”！     ", "信息提示");
  s->confirm.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(test.dump("yhxx", "yhxm|yhjb"), "王芳|超级管理员\n");
  EXPECT_EQ(test.count("select * from yhxx1 where fn=true"), 100);
  EXPECT_NE(storedPassword(test, "王芳"), "123456");
  EXPECT_TRUE(passwordFits(storedPassword(test, "王芳"), "123456 "));
  EXPECT_FALSE(passwordFits(storedPassword(test, "王芳"), "12345"));
}

TEST(FirstRun, ThereIsOneFirstUser) {
  support::School test;
  auto s = opened<Formyhxx4>(test);
  addUser(test.store, "李强", superLevel, "1", test.clock.now());  // on another desk
  s->yhxm.type("过客");
  s->yhmm.type("1");
  test.person.expect(Box::Stop, "其他计算机已经设置了用户，请撤销后重新启动本系统再登录！     ", "操作提示");
  s->confirm.press();
  EXPECT_FALSE(s->closed() || test.session.first_user_added);
  EXPECT_EQ(test.dump("yhxx", "yhxm"), "李强\n");
}

TEST(SchoolName, IsTheOfficesOnceItIsSet) {
  support::School test;
  EXPECT_EQ(schoolName(test.store), "澜岳学校");
  for (const char* name : {"江北中学", "江北第一中学"}) {
    auto s = opened<Formxxmc>(test);
    for (const auto& [entry, words] : {std::pair<std::string, std::string>{" ", "学校名称不能为空！     "},
                                       {support::times(21, "校"), "学校名称不能超过20个字！     "}}) {
      s->xxmc.type(entry);
      test.person.expect(Box::Stop, words, "操作提示");
      s->confirm.press();
    }
    s->xxmc.type(std::string(" ") + name + " ");
    test.told("学校名称已保存，其他计算机在下次登录时使用！     ");
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(test.session.SchoolName, name);
    EXPECT_EQ(test.dump("xtsz", "mc|nr"), std::string("学校名称|") + name + "\n");
  }
}

TEST(Rights, FollowThePlaceOfTheRowAndStopAtAHundred) {
  TestDesk test;
  addUser(test.store, "李强", "一般操作员", "1", test.clock.now());
  EXPECT_FALSE(rightsOf(test.store, "李强", "一般操作员")[31]);
  store::RecordSet row(test.store, store::Sql("select * from yhxx1 where yhxm='李强' and bh=1031"));
  row.set("fn", true);
  row.update();
  EXPECT_TRUE(rightsOf(test.store, "李强", "一般操作员")[31]);
  addUser(test.store, "李强", "系统管理员", "2", test.clock.now());  // a second user of the name: 200 rows
  EXPECT_TRUE(rightsOf(test.store, "李强", "一般操作员")[62]);       // each number stands twice now
  EXPECT_FALSE(rightsOf(test.store, "新人", "一般操作员")[0]);
  EXPECT_TRUE(rightsOf(test.store, "新人", superLevel)[99]);
}

TEST(UserEdit, ChangingWithoutTouchingTheDotsKeepsThePassword) {
  TestDesk test;
  addUser(test.store, "李强", "一般操作员", "abc", test.clock.now());
  auto list = opened<Formyhxx>(test);
  list->records.list.select(0);
  test.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示")
      .expect(Box::Information, "选定记录已修改 ！     ", "信息提示");
  test.navigator.expect<Formyhxx2>([](Formyhxx2& s) {
    EXPECT_EQ(s.yhxm.text(), "李强");
    s.yhxm.type("李刚");
    s.confirm.press();
  });
  list->records.button("modify").press();
  EXPECT_EQ(list->records.list.cell(0, 0), "李刚");
  EXPECT_TRUE(passwordFits(storedPassword(test, "李刚"), "abc"));
  EXPECT_EQ(test.count("select * from yhxx1 where yhxm='李强'"), 100);  // the rights keep the old name

  test.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示")
      .expect(Box::Information, "选定记录已修改 ！     ", "信息提示");
  test.navigator.expect<Formyhxx2>([](Formyhxx2& s) {
    s.yhmm.type("x");
    s.yhmm.type("");
    s.confirm.press();
  });
  list->records.button("modify").press();
  EXPECT_TRUE(passwordFits(storedPassword(test, "李刚"), "abc"));

  test.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示")
      .expect(Box::Information, "选定记录已修改 ！     ", "信息提示");
  test.navigator.expect<Formyhxx2>([](Formyhxx2& s) {
    s.yhmm.clear();
    s.yhmm.leave();
    EXPECT_EQ(s.yhmm.text(), keptPassword);
    s.yhmm.type("xyz");
    s.confirm.press();
  });
  list->records.button("modify").press();
  EXPECT_TRUE(passwordFits(storedPassword(test, "李刚"), "xyz"));
}

TEST(UserEdit, AddsWithTypedSuperLevelAndDeletesWithTheRights) {
  support::School test;
  auto list = opened<Formyhxx>(test);
  test.navigator.expect<Formyhxx2>([&](Formyhxx2& s) {
    for (kit::Field* blank : {&s.yhxm, &s.yhjb, &s.yhmm}) {
      s.yhxm.type("赵敏");
      s.yhjb.type("超级管理员");
      s.yhmm.type("1");
      blank->type(" ");
      test.refused("输入项均不能为空！    ");
      s.confirm.press();
    }
    s.yhmm.type("1");
    test.told("用户添加成功！   ");
    s.confirm.press();
  });
  list->records.button("add").press();
  EXPECT_EQ(test.count("select * from yhxx1 where yhxm='赵敏' and fn=true"), 100);

  list->records.list.select(0);
  test.person.answer(true, Box::Ask, "您确认要删除选定记录吗？   ", "删除提示")
      .expect(Box::Information, "选定记录已删除 ！     ", "信息提示");
  test.navigator.expect<Formyhxx2>([](Formyhxx2& s) { s.confirm.press(); });
  list->records.button("remove").press();
  EXPECT_EQ(test.count("select * from yhxx") + test.count("select * from yhxx1"), 0);
}

TEST(UserEdit, AQuoteInTheNameFailsInWordsAndAddsNothing) {
  TestDesk test;
  addUser(test.store, "x' or 'a'='a", "一般操作员", "1", test.clock.now());
  EXPECT_EQ(test.count("select * from yhxx"), 1);  // stored as it is: only statements refuse the sign
  EXPECT_THROW(rightsOf(test.store, "x' or 'a'='a", "一般操作员"), store::StoreError);
}

TEST(UserRights, GrantsWhatIsTickedAndReadiesForTheNextUser) {
  TestDesk test;
  addUser(test.store, "王芳", superLevel, "1", test.clock.now());
  addUser(test.store, "李强", "一般操作员", "1", test.clock.now());
  auto s = opened<Formyhxx1>(test);
  EXPECT_FALSE(s->save.enabled());
  s->yhxm.pick("李强");
  EXPECT_EQ(s->yhxm.choices(), std::vector<std::string>{"李强"});  // super administrators have no need of it
  s->box(31)->toggle();
  s->box(3)->toggle();
  test.person.expect(Box::Information, "授权设置成功 ！      ", "信息提示");
  s->save.press();
  EXPECT_FALSE(s->save.enabled());
  EXPECT_FALSE(s->box(31)->on());
  const auto rights = rightsOf(test.store, "李强", "一般操作员");
  for (std::size_t i = 0; i < rights.size(); ++i) EXPECT_EQ(rights[i], i == 31 || i == 3) << i;
  s->yhxm.pick("李强");
  EXPECT_TRUE(s->box(31)->on());
  for (int number = 0; number <= kit::lastRight; ++number) EXPECT_TRUE(s->box(number)) << number;
}

// The ticks of one name are never saved for another, nor over what another desk has granted meanwhile.
TEST(UserRights, GoOnlyToTheUserTheyWereShownFor) {
  support::School test;
  for (const char* name : {"李强", "赵敏"}) addUser(test.store, name, "一般操作员", "1", test.clock.now());
  auto s = opened<Formyhxx1>(test);
  s->yhxm.pick("李强");
  s->box(31)->toggle();
  s->yhxm.type("赵敏");
  s->save.press();  // shows hers first
  EXPECT_FALSE(s->box(31)->on());
  s->box(30)->toggle();
  store::RecordSet other(test.store, "select * from yhxx1 where yhxm='赵敏' and bh=1031");
  kit::writeRow(other, {{"fn", true}});
  test.conflict("赵敏的权限");
  s->save.press();
  EXPECT_EQ(test.count("select * from yhxx1 where fn=true"), 1);

  s->yhxm.pick("赵敏");
  EXPECT_TRUE(s->box(31)->on());
  test.told("该用户没有权限记录（可能改过姓名），不能授权！请先删除该用户，再重新添加。    ");
  s->yhxm.type("李刚");
  s->yhxm.enter();
  EXPECT_FALSE(s->save.enabled() || s->box(31)->on());
}

TEST(PasswordChange, TestsInOrderThenChanges) {
  TestDesk test;
  addUser(test.store, "李强", "一般操作员", "old", test.clock.now());
  test.session.SessionUser = "李强";
  auto s = opened<Formyhxx3>(test);
  const struct {
    const char* was;
    const char* now;
    const char* again;
    const char* text;
    const char* title;
  } refused[] = {{"", "", "", "您必须输入旧密码！     ", "操作提示"},
                 {"x", "", "", "您必须输入新密码！     ", "操作提示"},
                 {"x", "n", " ", "您必须对新密码进行确认！     ", "操作提示"},
                 {"x", "n", "m", "旧密码错误，不能进行修改操作！     ", "错误提示"},
                 {"old", "n", "m", "新密码与验证码不相符！     ", "错误提示"}};
  for (const auto& c : refused) {
    s->old_password.type(c.was);
    s->new_password.type(c.now);
    s->repeated.type(c.again);
    test.person.expect(Box::Stop, c.text, c.title);
    s->confirm.press();
  }
  s->repeated.type(" n ");
  test.person.expect(Box::Information, "密码修改成功！     ", "信息提示");
  s->repeated.enter();
  EXPECT_TRUE(s->closed());
  EXPECT_TRUE(passwordFits(storedPassword(test, "李强"), "n"));
}

}  // namespace
}  // namespace upkeep
