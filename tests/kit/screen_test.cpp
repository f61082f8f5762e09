#include "kit/screen.h"

#include "kit/fault.h"
#include "kit/loading_screen.h"
#include "kit/notice.h"
#include "kit/rows.h"
#include "kit/validation.h"
#include "support/test_desk.h"

namespace kit {
namespace {

using support::opened;
using support::TestDesk;

// Two fields, a list and a button over the majors.
class Sample : public Screen {
 public:
  explicit Sample(Desk& all) : Screen(all, "Sample", "样板") {
    first.onChange([this] { second.set("随" + first.text()); });
    confirm.onPress([this] { ++confirmed; });
    broken.onPress([this] {
      first.set("已改");
      store::RecordSet wrong = rows("select * from zymcb where nosuch='1'");
      second.set("不应到这里");
    });
    leaving.onPress([this] {
      close();
      first.set("关闭以后");
    });
  }
  void load() override { majors.open("select * from zymcb order by zybh"); }
  Layout layout() override {
    return {.root = column({form({first, hidden, second}), majors, buttons({confirm, broken, leaving})}),
            .confirm = &confirm};
  }
  Field first{*this, "first", "一"}, hidden{*this, "hidden", "二"}, second{*this, "second", "三"};
  Grid majors{*this, "majors", desk.store, {{"代号", "zybh"}, {"名称", "zymc"}}};
  Action confirm{*this, "confirm", "确认"}, broken{*this, "broken", "出错"}, leaving{*this, "leaving", "离开"};
  int confirmed = 0;
};

TEST(Screen, AFaultEndsTheEventAndIsToldOnceInWords) {
  TestDesk test;
  auto s = opened<Sample>(test);
  test.person.expect(Box::Stop, "数据表“zymcb”中没有“nosuch”这一栏！\n本次操作的内容全部没有保存！", "错误提示");
  s->broken.press();
  EXPECT_EQ(s->first.text(), "已改");     // what went before stays
  EXPECT_EQ(s->second.text(), "随已改");  // a value set by code raises the same change as typing
}

// Whatever ends an event, the person reads it once with what was saved before, and the notice does not stand over it.
TEST(Screen, EveryKindOfFaultHasItsWords) {
  const struct {
    std::function<void()> raise;
    const char* words;
  } cases[] = {
      {[] { throw store::StoreError(store::Fault::Busy, "正被占用！"); }, "正被占用！\n*"},
      {[] { throw store::StoreError(store::Fault::Unsure, "不知是否保存！"); }, "不知是否保存！"},
      {[] { throw platform::PlatformError("打印机没有响应！"); }, "打印机没有响应！\n*"},
      {[] { (void)std::filesystem::file_size("/no/such/file"); },
       "读写“/no/such/file”时出错。请检查该文件夹是否存在、是否有权限，磁盘和网络是否正常！\n*"},
      {[] { throw std::bad_alloc(); }, "计算机的内存不足，操作已经停止。请关闭其它程序后再试！\n*"},
      {[] { throw std::out_of_range("place 7"); },
       "程序内部出错，操作已经停止。请重试一次；如果再次出错，请退出程序后重新进入，并把以下内容告诉管理员：\nplace "
       "7\n*"}};
  for (const auto& c : cases)
    for (const bool saves : {false, true}) {
      TestDesk test;
      auto s = opened<Sample>(test);
      s->first.onChange([&] {
        if (saves) test.add("zymcb", {{"zybh", "11"}});
        const Notice notice(test.progress, "正在处理 ...");
        EXPECT_TRUE(test.progress.shown);
        c.raise();
      });
      std::string words = c.words;
      if (words.ends_with("*")) words.replace(words.size() - 1, 1, saves ? savedBefore : nothingSaved);
      test.person.expect(Box::Stop, words, "错误提示");
      s->first.type("x");
      EXPECT_FALSE(test.progress.shown);
      EXPECT_FALSE(s->busy());
    }
}

// A receipt is in the ledger and its printing fails in a screen of its own: nobody may read that nothing was saved.
TEST(Screen, WhatTheEventAroundHasSavedIsTold) {
  TestDesk test;
  auto s = opened<Sample>(test);
  s->confirm.onPress([&] {
    test.add("zymcb", {{"zybh", "11"}});
    test.desk.navigator.open<Sample>(test.desk);
  });
  test.navigator.expect<Sample>([](Sample& inner) { inner.broken.press(); });
  test.person.expect(Box::Stop, "数据表“zymcb”中没有“nosuch”这一栏！\n" + std::string(savedBefore), "错误提示");
  s->confirm.press();
}

TEST(Screen, NobodyIsToldInsideAUnitOfWork) {
  TestDesk test;
  auto s = opened<Sample>(test), inner = opened<Sample>(test);
  s->confirm.onPress([&] {
    store::Unit unit(test.store);
    inner->broken.press();
  });
  test.person.expect(Box::Stop, "数据表“zymcb”中没有“nosuch”这一栏！\n" + std::string(nothingSaved), "错误提示");
  s->confirm.press();
}

TEST(Screen, AHandlerMayAddAnother) {
  TestDesk test;
  auto s = opened<Sample>(test);
  int heard = 0;
  s->confirm.onPress([&] {
    for (int i = 0; i < 100; ++i) s->confirm.onPress([&] { ++heard; });
  });
  s->confirm.press();
  EXPECT_EQ(heard, 0);
  s->confirm.enable(false);
  s->confirm.invoke();  // code presses what cannot be pressed: nothing happens
  EXPECT_EQ(heard, 0);
  s->confirm.enable(true);
  s->confirm.invoke();
  EXPECT_EQ(heard, 100);
}

struct Broken : LoadingScreen {
  explicit Broken(Desk& all) : LoadingScreen(all, "Broken") {}
  void proceed() override { rows("select * from zymcb where nosuch='1'"); }
};

TEST(LoadingScreen, CannotBeLeftAndGoesByAFault) {
  TestDesk test;
  auto s = opened<Broken>(test);
  EXPECT_FALSE(s->mayClose());
  test.person.expect(Box::Stop, "数据表“zymcb”中没有“nosuch”这一栏！\n" + std::string(nothingSaved), "错误提示");
  s->timer.tick();
  EXPECT_TRUE(s->closed());
}

TEST(Files, WhatCannotBeReadIsAFaultOfTheComputer) {
  support::FakeDesktop desktop;
  EXPECT_THROW(platform::readFile(desktop.programFolder()), platform::PlatformError)
      << "a folder opens, but is no file";
  EXPECT_THROW(platform::readFile(desktop.programFolder() / "none"), platform::PlatformError);
  platform::writeFile(desktop.programFolder() / "empty", "");
  EXPECT_EQ(platform::readFile(desktop.programFolder() / "empty"), "");
}

TEST(Screen, EnterMovesOverWhatIsHiddenAndConfirmsInTheEnd) {
  TestDesk test;
  auto s = opened<Sample>(test);
  s->hidden.show(false);
  s->first.focus();
  s->first.enter();
  EXPECT_EQ(s->focused, &s->second);
  EXPECT_EQ(s->confirmed, 0);
  s->second.enter();
  EXPECT_EQ(s->confirmed, 1);
}

TEST(Screen, NobodyUsesWhatCannotBeReached) {
  TestDesk test;
  auto s = opened<Sample>(test);
  s->first.enable(false);
  s->second.show(false);
  EXPECT_THROW(s->first.type("x"), std::logic_error);
  EXPECT_THROW(s->second.type("x"), std::logic_error);
  s->leaving.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(s->first.text(), "关闭以后");
  EXPECT_EQ(s->second.text(), "");  // a closed screen raises no more events
  EXPECT_THROW(s->confirm.press(), std::logic_error);
}

TEST(Grid, KnowsTheRowThatWasSelectedWhateverBecomesOfThoseAround) {
  TestDesk test;
  for (const char* code : {"11", "13", "12"}) test.add("zymcb", {{"zybh", code}, {"zymc", std::string("专业") + code}});
  auto s = opened<Sample>(test);
  EXPECT_EQ(s->majors.mark(), 0);
  s->majors.select(1);
  const std::int64_t twelve = s->majors.mark();
  removeEach(test.store, "select * from zymcb where zybh='11'");
  EXPECT_EQ(rowAt(test.store, "zymcb", twelve).get("zybh").text(), "12");
  s->majors.reload();
  EXPECT_EQ(s->majors.key(), "12");
  removeEach(test.store, "select * from zymcb where zybh='12'");
  EXPECT_THROW(rowAt(test.store, "zymcb", twelve), store::StoreError);
  s->majors.reload();
  EXPECT_EQ(s->majors.selected(), -1);  // never the next best row
}

TEST(FreeNumbers, PassOverWhatStands) {
  struct Case {
    std::vector<const char*> standing;
    const char* first;
    std::vector<std::string> given;
  };
  const Case cases[] = {
      {{}, "2026307001", {"2026307001", "2026307002", "2026307003"}},
      {{"2026307001", "2026307003"}, "2026307001", {"2026307002", "2026307004", "2026307005"}},
      {{"998", "1000", "1002"}, "998", {"999", "1001", "1003"}},  // the order of texts is not that of numbers
      {{"1", "10000001", "10000002", "2", "A100"}, "1", {"3", "4", "5"}},
      {{"99999999999999999999"},
       "99999999999999999999",
       {"100000000000000000000", "1000000000000000000001", "10000000000000000000011"}},  // beyond any step
  };
  for (const Case& one : cases) {
    TestDesk test;
    for (const char* number : one.standing) test.add("jfjl", {{"fpbh", number}});
    EXPECT_EQ(freeNumbers(test.store, "jfjl", "fpbh", one.first, 3), one.given) << one.first;
  }
  TestDesk long_run;
  for (int i = 1; i <= 40; ++i) long_run.add("jfjl", {{"fpbh", std::to_string(10000000 + i)}});
  for (const char* number : {"1", "2"}) long_run.add("jfjl", {{"fpbh", number}});
  EXPECT_EQ(freeNumbers(long_run.store, "jfjl", "fpbh", "1", 1), std::vector<std::string>{"3"});
}

TEST(Validation, StopsAtTheFirstBreachWithTheFocusInItsField) {
  TestDesk test;
  auto s = opened<Sample>(test);
  const std::vector<Rule> rules{{&s->first, longerThan(s->first, 3), "太长", "一"},
                                {&s->first, blank(s->first), "不能为空", "二", Box::Warning},
                                {&s->second, filledNotNumeric(s->second), "应该是数字", "三"},
                                {&s->second, filledNotDate(s->second), "应该是日期", "四"}};
  const struct {
    const char* first;
    const char* second;
    Box box;
    const char* text;
    const char* title;
  } cases[] = {{"汉字四个", "x", Box::Stop, "太长", "一"},
               {" ", "x", Box::Warning, "不能为空", "二"},
               {"好", "x", Box::Stop, "应该是数字", "三"},
               {"好", "12", Box::Stop, "应该是日期", "四"}};
  for (const auto& c : cases) {
    s->first.type(c.first);
    s->second.type(c.second);
    test.person.expect(c.box, c.text, c.title);
    EXPECT_FALSE(holds(test.person, rules));
  }
  EXPECT_EQ(s->focused, &s->second);
  s->second.type(" ");
  EXPECT_TRUE(holds(test.person, rules));
}

TEST(List, ALongListReadsItsRowsWhenTheyAreLookedAt) {
  TestDesk test;
  {
    store::Unit unit(test.store);
    store::RecordSet majors(test.store, "select * from zymcb");
    for (int i = 0; i < 5000; ++i) {
      majors.addNew();
      majors.set("zybh", std::to_string(10000 + i));
      majors.set("zymc", "专业" + std::to_string(i));
      majors.update();
    }
    unit.finish();
  }
  auto s = opened<Sample>(test);
  ASSERT_EQ(s->majors.count(), 5000);
  for (const long long row : {0, 1999, 2000, 4999, 3000, 2100})
    EXPECT_EQ(s->majors.cell(row, 0), std::to_string(10000 + row));
  s->majors.select(4321);
  EXPECT_EQ(rowAt(test.store, "zymcb", s->majors.mark()).get("zymc").text(), "专业4321");
  store::RecordSet(test.store, "select * from zymcb where zybh='14000'").remove();
  EXPECT_EQ(s->majors.cell(4000, 0), "");  // gone meanwhile: its place stays, blank
  EXPECT_EQ(s->majors.cell(4001, 1), "专业4001");
}

TEST(List, ShowsEachFormat) {
  const struct {
    store::Value value;
    Format format;
    const char* shown;
  } cases[] = {{store::Value(" 王 "), Format::Text, "王"},
               {store::Value(), Format::Money, ""},
               {store::Value(""), Format::Date, ""},
               {store::Value(base::Money::fen(1250)), Format::Money, "12.50"},
               {store::Value("12.5"), Format::Padded, "    12.50"},
               {store::Value(base::Date{2008, 9, 1}), Format::Date, "2008-9-1"},
               {store::Value("2008-9-1"), Format::LongDate, "2008年9月1日"}};
  for (const auto& c : cases) EXPECT_EQ(formatted(c.value, c.format), c.shown);
}

}  // namespace
}  // namespace kit
