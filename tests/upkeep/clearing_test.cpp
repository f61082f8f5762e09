#include "upkeep/clearing.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "store/database.h"
#include "support/test_desk.h"

namespace upkeep {
namespace {

using kit::Box;
using support::opened;
using support::TestDesk;

constexpr const char* first = "您确认是要清空系统中所有数据吗？   ";
constexpr const char* second =
    "选择“是”继续；否则，点“否”撤销此操作！   \n\n数据清空后不可恢复！建议您先备份数据库！确认继续吗？   ";

// One row in every table of the main database.
struct FullSchool : TestDesk {
  FullSchool() {
    for (const store::Table& table : store::tables())
      if (table.connection == store::Connection::Main) add(table.name, {{table.columns.front().name, {}}});
  }
  std::set<std::string> filled() {
    std::set<std::string> names;
    for (const store::Table& table : store::tables())
      if (table.connection == store::Connection::Main && isThere(table.name) &&
          count(store::Sql::table(table.name)) > 0)
        names.insert(std::string(table.name));
    return names;
  }
  bool isThere(std::string_view table) {
    return !store.database(store::Connection::Main).engine().columnsOf(table).empty();
  }
};

TEST(Clearing, AsksTwiceThenOpensTheClearing) {
  TestDesk test;
  auto s = opened<Formcsh3>(test);
  test.person.answer(false, Box::AskStop, first, "警告");
  s->confirm.press();
  test.person.answer(true, Box::AskStop, first, "警告").answer(false, Box::AskStop, second, "再次警告");
  s->confirm.press();
  test.person.answer(true, Box::AskStop, first, "警告").answer(true, Box::AskStop, second, "再次警告");
  test.navigator.expect<Formcsh4>([](Formcsh4& clearing) {
    EXPECT_EQ(clearing.text.text(), "正在检测 ...");
    clearing.close();
  });
  s->confirm.press();
  EXPECT_FALSE(s->closed());
}

TEST(Clearing, EmptiesItsTablesAndNoOthers) {
  FullSchool school;
  auto s = opened<Formcsh4>(school);
  EXPECT_FALSE(s->mayClose());
  school.person.expect(Box::Information, "数据库已清空 ！        ", "信息提示");
  s->timer.tick();
  EXPECT_TRUE(s->closed());
  std::set<std::string> kept;
  for (const std::string& name : school.filled())
    if (!name.starts_with("dy_")) kept.insert(name);
  EXPECT_EQ(kept, (std::set<std::string>{"rxxs", "czbz", "tskc1", "tskclsb", "wpkc", "gzlsb", "gzblsb", "ls_gzb",
                                         "cjb1", "qfjl_wjf", "qfjl_je", "xtsz"}));
  EXPECT_EQ(school.filled().size() - kept.size(), 8u);  // the print tables

  auto& texts = school.progress.texts;
  EXPECT_EQ(texts.size(), 31u);
  texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
  EXPECT_EQ(texts.size(), 20u);
  EXPECT_EQ(texts.front(), "正在清空班级资料信息 ...");
  EXPECT_EQ(texts.back(), "正在清空学生住宿信息表记录 ...");
  EXPECT_FALSE(school.progress.shown);
}

TEST(Clearing, AFaultLeavesTheTablesBeforeItEmptyAndTheRestUntouched) {
  FullSchool school;
  const auto before = school.filled();
  school.store.database(store::Connection::Main).engine().execute("drop table cjb");
  std::string words;
  try {
    store::RecordSet(school.store, "select * from cjb").removeAll();
  } catch (const store::StoreError& error) {
    words = error.what();
  }
  auto s = opened<Formcsh4>(school);
  school.person.expect(Box::Stop, words + "\n出错之前的步骤已经保存，出错的这一步没有保存！", "错误提示");
  s->timer.tick();
  EXPECT_TRUE(s->closed());
  EXPECT_FALSE(school.progress.shown);
  std::set<std::string> gone{"cjb"};
  std::ranges::set_difference(before, school.filled(), std::inserter(gone, gone.end()));
  EXPECT_EQ(gone, (std::set<std::string>{"bjzl", "jfjl", "qfjl", "sfbzb", "sfxmb", "xs", "yhxx", "yhxx1", "zymcb",
                                         "mvlyb", "cjb"}));
}

}  // namespace
}  // namespace upkeep
