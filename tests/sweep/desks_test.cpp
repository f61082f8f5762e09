// Every record desk by its plan: what the plan says of rows, buttons, rights, words and emptying is what a person
// meets.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/text.h"
#include "kit/record_desk.h"
#include "sweep/world.h"

namespace sweep {
namespace {

using kit::Box;
using store::RecordSet;
using store::Sql;

// The screen of a desk, with that desk in sight.
struct Opened {
  Opened(const app::Entry& entry, kit::Desk& with, std::size_t place)
      : screen(entry.make(with, World::opening(kit::Mode::Modify))), desk(*screen->recordDesks()[place]) {
    screen->start();
    for (kit::Member* member : screen->members()) {
      if (member->kind != kit::MemberKind::Choice || desk.list.visible()) continue;
      auto& choice = static_cast<kit::Choice&>(*member);
      choice.choose(1 - choice.chosen());
    }
    EXPECT_TRUE(desk.list.reachable());
  }
  const std::unique_ptr<kit::Screen> screen;
  kit::RecordDesk& desk;
};

// No table without rows: what empties one too many is seen.
void fillEmptyTables(store::Store& store) {
  for (const store::Table& table : store::tables()) {
    if (table.remade || table.connection != store::Connection::Main) continue;
    RecordSet rows(store, Sql::table(table.name));
    if (!rows.empty()) continue;
    const auto text = std::ranges::find(table.columns, store::Type::Text, &store::Column::type);
    ASSERT_NE(text, table.columns.end()) << table.name;
    rows.addNew();
    rows.set(text->name, "1");
    rows.update();
  }
}

class EveryRecordDesk : public testing::TestWithParam<std::pair<app::Entry, std::size_t>> {
 protected:
  EveryRecordDesk() {
    fillEmptyTables(world.parts.store);
    world.begin();
    const std::string table = open(world.desk).desk.plan.table;
    copyRow(world.parts.store, table, RecordSet(world.parts.store, Sql::table(table)).mark());
    world.begin();
  }
  Opened open(kit::Desk& desk) { return {GetParam().first, desk, GetParam().second}; }
  // Of the plan, each with the rights that it names.
  static std::vector<std::pair<kit::Action*, std::vector<int>>> gates(kit::RecordDesk& desk) {
    std::vector<std::pair<kit::Action*, std::vector<int>>> all;
    for (std::size_t i = 0; i < desk.buttons.size(); ++i)
      all.emplace_back(&desk.buttons[i], desk.plan.buttons[i].anyOf);
    for (std::size_t i = 0; i < desk.others.size(); ++i) all.emplace_back(&desk.others[i], desk.plan.others[i].anyOf);
    if (desk.query) all.emplace_back(&*desk.query, desk.plan.queryBy);
    if (desk.clearAll) all.emplace_back(&*desk.clearAll, desk.plan.emptying->anyOf);
    return all;
  }
  void listIsWhatTheStatementFinds(kit::RecordDesk& desk) {
    EXPECT_EQ(desk.list.count(), RecordSet(world.parts.store, desk.statement()).count());
    if (desk.count) {
      EXPECT_TRUE(desk.count->text().ends_with(base::caption(desk.list.count()))) << desk.count->text();
    }
  }

  World world;
  support::ScriptedPerson& scripted = world.parts.person;
};

TEST_P(EveryRecordDesk, EnablesEachButtonWithEachOfItsRightsAlone) {
  const int rights = static_cast<int>(world.parts.session.Rights.size());
  for (int right = -1; right < rights; ++right) {
    world.parts.session.Rights.fill(false);
    if (right >= 0) world.parts.session.Rights[static_cast<std::size_t>(right)] = true;
    auto [screen, desk] = open(world.parts.desk);
    EXPECT_TRUE(desk.query || desk.plan.queryBy.empty());
    for (const auto& [action, anyOf] : gates(desk))
      EXPECT_EQ(action->enabled(), anyOf.empty() || std::ranges::count(anyOf, right) > 0) << action->name << right;
  }
}

TEST_P(EveryRecordDesk, TellsThatThereIsNoRowToWorkOn) {
  const auto table = Sql::table(open(world.parts.desk).desk.plan.table);
  RecordSet(world.parts.store, table).removeAll();
  auto [screen, desk] = open(world.parts.desk);
  for (const kit::RowButton& one : desk.plan.buttons) {
    if (one.mode == kit::Mode::Add) continue;
    EXPECT_STRNE(one.none, "") << one.name;
    scripted.expect(one.noneBox, one.none, "信息提示");
    desk.button(one.name).press();
  }
}

// What an edit does to its row is its own; the list goes back to it, or shows that it has gone.
TEST_P(EveryRecordDesk, GoesBackToTheRowAndCountsAnewAfterAnEdit) {
  auto [screen, desk] = open(world.desk);
  listIsWhatTheStatementFinds(desk);
  EXPECT_GE(desk.list.count(), 2);
  for (const kit::RowButton& one : desk.plan.buttons) {
    world.person.told.clear();
    world.navigator.opened = 0;
    desk.list.setSelected(-1);
    if (one.mode != kit::Mode::Add) desk.button(one.name).press();
    EXPECT_TRUE(world.navigator.opened == 0 && world.person.told.empty()) << one.name << " with no row selected";
    desk.list.select(1);
    const std::int64_t worked = desk.list.mark();
    desk.button(one.name).press();
    EXPECT_TRUE(world.navigator.opened == 1 || world.person.told.size() == 1) << one.name << " leads nowhere";
    EXPECT_THAT(world.person.faults, testing::IsEmpty()) << one.name;
    const bool stands = RecordSet(world.parts.store, Sql::table(desk.plan.table)).goTo(worked);
    EXPECT_EQ(desk.list.mark(), stands ? worked : 0) << one.name;
    listIsWhatTheStatementFinds(desk);
    copyRow(world.parts.store, desk.plan.table, RecordSet(world.parts.store, Sql::table(desk.plan.table)).mark());
    desk.reload();
  }
  if (!desk.query) return;
  world.navigator.opened = 0;
  desk.query->press();
  EXPECT_EQ(world.navigator.opened, 1);
  listIsWhatTheStatementFinds(desk);
  EXPECT_EQ(desk.list.mark(), 0);
  if (desk.count && desk.plan.countedByFilter) {
    EXPECT_TRUE(desk.count->text().starts_with(desk.plan.countedByFilter)) << desk.count->text();
  }
}

TEST_P(EveryRecordDesk, EmptiesWhatItNamesAfterTwoQuestions) {
  auto [screen, desk] = open(world.parts.desk);
  if (!desk.plan.emptying) return;
  const kit::Emptying& what = *desk.plan.emptying;
  desk.show({kit::chain({kit::equals(desk.plan.columns.front().column, "无")})});
  EXPECT_EQ(desk.list.count(), 0) << "all rows go, whatever is listed";
  const Books before = booksOf(world.parts.store);
  const auto asked = [&](bool first, bool second) {
    scripted.answer(first, Box::AskStop, what.first, "警告");
    if (first)
      scripted.answer(second, Box::AskStop, std::string(what.second) + "\n\n选择“是”继续；否则，点“否”撤销此操作！   ",
                      "再次警告");
  };
  for (const bool first : {false, true}) {
    asked(first, false);
    desk.clearAll->press();
    EXPECT_EQ(booksOf(world.parts.store), before);
  }
  for (const char* told : {what.done, what.none}) {
    if (told == what.done) asked(true, true);  // an empty table is told at once
    scripted.expect(Box::Information, told, "信息提示");
    desk.clearAll->press();
    std::set<std::string> emptied, kept;
    const Books now = booksOf(world.parts.store);
    for (const auto& [row, text] : before) {
      const auto found = now.find(row);
      (found == now.end() ? emptied : kept).insert(row.first);
      if (found != now.end()) {
        EXPECT_EQ(found->second, text) << row.first;
      }
    }
    EXPECT_EQ(emptied, std::set<std::string>(what.tables.begin(), what.tables.end()));
    for (const std::string& table : emptied) EXPECT_FALSE(kept.contains(table)) << table;
    listIsWhatTheStatementFinds(desk);
  }
}

// The tests above hold a desk to its own plan; here the plans are held to what the office agreed on: who may do what,
// by the number of the right, and what is said when there is no row to do it to.
TEST_P(EveryRecordDesk, GrantsAndSaysWhatWasAgreedOn) {
  const std::string edits = "add|modify 不存在需要修改的记录！  |remove 不存在需要删除的记录！  ";
  const std::map<std::string, std::string> agreed{
      {"xxfk",
       "add|resume[40] 不存在需要复课的休学记录！  |remove[41] 不存在需要删除的记录！  "
       "|query[43]|print[43]|toSheet[43]|"
       "clearAll[42] 不存在需要清空的记录！  "},
      {"js",
       "add[32]|modify[33] 不存在需要修改的记录！  |remove[3] 不存在需要删除的记录！  |query[38]|print[38]|toSheet[38]|"
       "clearAll[35] 不存在需要清空的记录！  "},
      {"yhxx", edits},
      {"zymcb", edits},
      {"bjzl", edits},
      {"sfxmb", edits},
      {"sfbzb", edits},
      {"sfbzbrxxs", edits},
      {"cjsz", edits},
      {"rxxs", edits}};
  auto [screen, desk] = open(world.desk);
  std::string found;
  const auto tell = [&](const std::string& name, const std::vector<int>& anyOf, const std::string& none) {
    found += (found.empty() ? "" : "|") + name;
    for (const int right : anyOf) found += "[" + std::to_string(right) + "]";
    if (!none.empty()) found += " " + none;
  };
  for (const kit::RowButton& one : desk.plan.buttons) tell(one.name, one.anyOf, one.none);
  if (desk.query) tell("query", desk.plan.queryBy, "");
  for (const kit::ListButton& one : desk.plan.others) tell(one.name, one.anyOf, "");
  if (desk.plan.emptying) tell("clearAll", desk.plan.emptying->anyOf, desk.plan.emptying->none);
  EXPECT_EQ(found, agreed.at(desk.plan.table));
}

std::vector<std::pair<app::Entry, std::size_t>> everyDesk() {
  World world;
  std::vector<std::pair<app::Entry, std::size_t>> all;
  for (const app::Entry& entry : app::screens()) {
    const auto screen = entry.make(world.desk, World::opening(kit::Mode::Modify));
    for (std::size_t i = 0; i < screen->recordDesks().size(); ++i) all.emplace_back(entry, i);
  }
  return all;
}

INSTANTIATE_TEST_SUITE_P(Desks, EveryRecordDesk, testing::ValuesIn(everyDesk()),
                         [](const auto& one) { return one.param.first.name + std::to_string(one.param.second); });

}  // namespace
}  // namespace sweep
