// Reading and writing through record sets: types, walks in whose middle rows come and go, units.
#include <gmock/gmock.h>

#include <algorithm>

#include "store/configurations.h"
#include "store/new_rows.h"
#include "support/failing_engine.h"

namespace store {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class Records : public Conformance {
 protected:
  void addNumbered(int count) {
    std::vector<std::vector<Value>> rows;
    for (int i = 1; i <= count; ++i) rows.push_back({std::to_string(i), i % 2 ? "odd" : "even", i});
    add("jfjl", {"lsh", "xm", "je"}, rows);
  }
  std::vector<std::string> all() { return column("select * from jfjl", "lsh"); }
};
INSTANTIATE_TEST_SUITE_P(Store, Records, configurations(), nameOf);

TEST_P(Records, ValuesAreTypedBothWays) {
  struct Typing {
    std::string column;
    Value given, expected;
  };
  const std::vector<Typing> cases{
      {"kjsj", "2008-9-1 8:05:03", base::DateTime{{2008, 9, 1}, 8, 5, 3}},
      {"kjsj", base::Date{2008, 9, 1}, base::DateTime{{2008, 9, 1}}},
      {"kjsj", "", ""},
      {"kjsj", " ", ""},
      {"kjsj", Value(), Value()},
      {"yhxm", base::Date{2008, 9, 1}, "2008-9-1"},
      {"yhxm", base::DateTime{{2008, 9, 1}, 8, 5, 3}, "2008-9-1 8:05:03"},
      {"yhxm", *base::Money::parse("12.50"), "12.5"},
      {"yhxm", 10000002, "10000002"},
      {"yhxm", "", ""},
      {"yhxm", Value(), Value()},
      {"yhxm", " a ", " a "},
      {"yhxm", "0012", "0012"},
  };
  for (const Typing& typing : cases) {
    RecordSet set(*store_, "select * from czjl");
    set.addNew();
    set.set(typing.column, typing.given);
    EXPECT_EQ(set.get(typing.column), typing.expected) << "before the row is written";
    set.update();
    EXPECT_EQ(set.get(typing.column), typing.expected) << "once it is written";
    step();
    RecordSet again(*store_, "select * from czjl");
    again.last();
    EXPECT_EQ(again.get(typing.column), typing.expected) << typing.column << " " << typing.given.text();
    EXPECT_EQ(again.text(typing.column), typing.expected.text());
    EXPECT_EQ(again.text(typing.column).data() == nullptr, typing.expected.isNull());
  }
}

TEST_P(Records, AmountsDatesNumbersAndYesNo) {
  const base::Money amount = *base::Money::parse("12.5");
  for (const Value& given : {Value("12.50"), Value(12.5), Value(amount), Value(" 12.5 ")}) {
    add("jfjl", {"je", "jfrq"}, {{given, "2008-09-1"}});
    RecordSet set(*store_, "select * from jfjl");
    set.last();
    EXPECT_EQ(set.get("je"), Value(amount));
    EXPECT_EQ(set.get("JFRQ"), Value(base::Date{2008, 9, 1}));
  }
  RecordSet set(*store_, "select * from jfjl");
  set.set("je", "");
  EXPECT_TRUE(set.get("je").isNull()) << "an empty amount is none";
  for (const auto& [name, value] : std::vector<std::pair<std::string, Value>>{
           {"je", "12.5元"}, {"je", base::Date{}}, {"je", 1e300}, {"jfrq", "2008-2-30"}, {"jfrq", 5}}) {
    EXPECT_EQ(faultOf([&] { set.set(name, value); }), Fault::Statement) << name << " " << value.text();
  }
  try {
    set.set("jfrq", "soon");
  } catch (const StoreError& error) {
    EXPECT_THAT(error.what(), testing::AllOf(testing::HasSubstr("jfrq"), testing::HasSubstr("soon")));
  }
  RecordSet settings(*store_, "select * from morvanedjpzb where fn='kqd'", Connection::Config);
  EXPECT_EQ(settings.get("qfmr"), Value(true));
  settings.set("qfmr", "false");
  settings.set("qfts", "30");
  settings.update();
  step();
  settings.refresh();
  EXPECT_EQ(settings.get("qfmr"), Value(false));
  EXPECT_EQ(settings.get("qfts"), Value(30));
}

TEST_P(Records, PicturesComeBackAsTheyWere) {
  Bytes every;
  for (int i = 0; i < 100000; ++i) every.push_back(static_cast<std::byte>(i % 256));
  add("xs", {"xh", "xp"}, {{"1", every}, {"2", Value()}, {"3", Bytes{std::byte{0}}}});
  RecordSet set(*store_, "select xp, xh from xs order by xh");
  std::vector<std::size_t> sizes;
  forEach(set, [&](RecordSet& at) {
    sizes.push_back(at.get("xp").bytes().size());
    EXPECT_EQ(at.get("xp").isNull(), at.get("xh").text() == "2");
  });
  EXPECT_THAT(sizes, ElementsAre(100000, 0, 1));
  set.first();
  EXPECT_EQ(set.get("xp"), Value(every));
  const Value other(Bytes{std::byte{7}});
  set.set("xp", other);
  EXPECT_EQ(set.get("xp"), other) << "before the row is written";
  set.update();
  EXPECT_EQ(set.get("xp"), other) << "once it is written";
  EXPECT_EQ(rows(*store_, "select * from xs where xh='1'"), 1);
}

TEST_P(Records, ASetWithoutRows) {
  RecordSet set(*store_, "select * from jfjl");
  EXPECT_TRUE(set.empty());
  EXPECT_TRUE(set.atEnd());
  EXPECT_EQ(set.count(), 0);
  set.last();
  EXPECT_TRUE(set.atEnd());
  set.next();
  EXPECT_EQ(faultOf([&] { set.get("xm"); }), Fault::RowGone);
  EXPECT_EQ(faultOf([&] { set.set("xm", "a"); }), Fault::RowGone);
  EXPECT_EQ(faultOf([&] { set.remove(); }), Fault::RowGone);
  EXPECT_EQ(faultOf([&] { RecordSet(*store_).count(); }), Fault::RowGone);
}

TEST_P(Records, ColumnsOfASet) {
  addNumbered(2);
  RecordSet set(*store_, "select XM, je from jfjl order by lsh");
  EXPECT_THAT(set.fields(), ElementsAre("xm", "je"));
  EXPECT_EQ(set.get("Je").text(), "1");
  EXPECT_EQ(faultOf([&] { set.get("lsh"); }), Fault::NoSuchColumn);
  EXPECT_EQ(faultOf([&] { set.set("nothing", 1); }), Fault::NoSuchColumn);
  set.next();
  EXPECT_EQ(set.get("xm").text(), "even");
  RecordSet groups(*store_, "select xm from jfjl group by xm");
  EXPECT_EQ(faultOf([&] { groups.set("xm", "a"); }), Fault::Statement);
  EXPECT_EQ(faultOf([&] { groups.remove(); }), Fault::Statement);
}

TEST_P(Records, AWalkThatDeletesClearsTheTable) {
  addNumbered(50);
  RecordSet set(*store_, "select * from jfjl");
  int visited = 0;
  forEach(set, [&](RecordSet& at) {
    ++visited;
    at.remove();
    at.update();
    if (visited % 10 == 0) step();
  });
  EXPECT_EQ(visited, 50);
  EXPECT_THAT(all(), SizeIs(0));
}

TEST_P(Records, AWalkKeepsItsOwnRows) {
  addNumbered(6);
  RecordSet set(*store_, "select * from jfjl where xm='odd' order by lsh desc");
  std::vector<std::string> visited;
  forEach(set, [&](RecordSet& at) {
    visited.push_back(at.get("lsh").text());
    at.set("xm", "even");                       // leaves the condition
    at.set("lsh", "9" + at.get("lsh").text());  // and its place in the order
    at.update();
    EXPECT_EQ(at.get("xm").text(), "even");
    RecordSet other(*store_, "select * from jfjl");
    other.addNew();
    other.set("xm", "odd");
    other.update();
    step();
  });
  EXPECT_THAT(visited, ElementsAre("5", "3", "1"));
  EXPECT_THAT(column("select * from jfjl where xm='even' order by lsh", "lsh"),
              ElementsAre("2", "4", "6", "91", "93", "95"));
}

TEST_P(Records, AWholeSetIsWrittenOrDeletedInOneStatement) {
  addNumbered(6);
  RecordSet others(*store_, "select * from jfjl order by lsh desc");
  others.first();
  RecordSet odd(*store_, Sql("select * from jfjl where xm='") + std::string("odd") + "' and je<5");
  EXPECT_EQ(odd.setAll("skr", "王芳"), 2);
  EXPECT_EQ(odd.get("skr"), Value("王芳"));
  EXPECT_EQ(column("select * from jfjl where skr='王芳'", "lsh"), (std::vector<std::string>{"1", "3"}));
  step();
  EXPECT_EQ(odd.removeAll(), 2);
  EXPECT_TRUE(odd.empty());
  EXPECT_EQ(all(), (std::vector<std::string>{"2", "4", "5", "6"}));
  std::vector<std::string> left;
  for (; !others.atEnd(); others.next()) left.push_back(others.get("lsh").text());
  EXPECT_EQ(left, (std::vector<std::string>{"6", "5", "4", "2"})) << "a walk under way goes on without them";
}

TEST_P(Records, MarkedRowsAreReadTogetherInTheirOwnOrder) {
  addNumbered(450);
  RecordSet set(*store_, "select lsh,je from jfjl order by je desc");
  std::vector<std::int64_t> marks;
  forEach(set, [&](RecordSet& row) { marks.push_back(row.mark()); });
  RecordSet(*store_, "select * from jfjl where lsh='440'").removeAll();
  step();
  RecordSet behind = set.another();
  long long wanted = 450;
  EXPECT_EQ(behind.setMarked(std::span(marks).first(300), "je", 7), 299);
  step();
  EXPECT_THAT(column("select * from jfjl where je=7", "lsh"), SizeIs(300)) << "and the seventh";
  behind.visit(marks, [&](bool there) {
    EXPECT_EQ(there, wanted != 440);
    EXPECT_EQ(there ? behind.get("lsh").text() : "440", std::to_string(wanted));
    --wanted;
  });
  EXPECT_EQ(wanted, 0);
  std::ranges::reverse(marks);  // as they are stored
  behind.visit(marks, [&](bool there) {
    ++wanted;
    EXPECT_EQ(there, wanted != 440);
    EXPECT_EQ(there ? behind.text("lsh") : "440", std::to_string(wanted));
    if (wanted == 100) behind.set("je", 777), behind.update();  // from here on they are read one by one
    EXPECT_TRUE(!there || behind.money("je") == behind.get("je").money());
  });
  EXPECT_EQ(wanted, 450);
  EXPECT_THAT(column("select * from jfjl where je=777", "lsh"), ElementsAre("100"));
}

TEST_P(Records, ManyNewRowsGoIntoFewStatements) {
  addNumbered(2);
  RecordSet walk(*store_, "select lsh from jfjl order by lsh");
  ASSERT_EQ(walk.text("lsh"), "1");
  Unit unit(*store_);
  NewRows rows(*store_, "jfjl", {"lsh", "je", "jfrq"});
  for (int i = 3; i <= 99; ++i) rows.add(std::to_string(i), i, i % 2 ? Value("2026-9-7") : Value());
  rows.finish();
  RecordSet last(*store_, "select lsh,je,jfrq from jfjl where lsh='99'");
  EXPECT_EQ(rows.lastMark(), last.mark());
  EXPECT_EQ(last.money("je"), base::Money::yuan(99));
  EXPECT_EQ(last.get("jfrq"), Value(base::Date{2026, 9, 7}));
  EXPECT_EQ(faultOf([&] {
              for (int i = 100; i < 200; ++i) rows.add(std::to_string(i), "many", Value());
            }),
            Fault::Statement);
  walk.next();
  EXPECT_EQ(walk.text("lsh"), "2");
  walk.next();
  EXPECT_TRUE(walk.atEnd()) << "a walk under way keeps its rows";
  unit.finish();
  step();
  EXPECT_EQ(RecordSet(*store_, "select * from jfjl").count(), 99);
}

TEST_P(Records, AMarkLeadsToItsRowAsItIsNow) {
  addNumbered(3);
  RecordSet list(*store_, "select lsh from jfjl order by lsh"), set(*store_, "select lsh,je from jfjl where lsh='2'");
  list.next();
  const std::int64_t second = list.mark();
  RecordSet(*store_, "select * from jfjl where lsh='2'").setAll("lsh", "20");
  RecordSet(*store_, "select * from jfjl where lsh='1'").removeAll();  // the rows after it move up
  step();
  ASSERT_TRUE(set.goTo(second)) << "though it is not of the set any more";
  EXPECT_EQ(set.get("lsh").text(), "20");
  Unit unit(*store_);
  ASSERT_TRUE(set.goTo(second));
  set.set("je", 5);
  set.update();
  EXPECT_TRUE(set.goTo(second));
  EXPECT_EQ(set.get("je").text(), "5");
  set.next();
  EXPECT_TRUE(set.atEnd());
  set.goTo(second);
  set.remove();
  unit.finish();
  EXPECT_FALSE(set.goTo(second));
  EXPECT_TRUE(set.atEnd());
  EXPECT_EQ(faultOf([&] { set.get("lsh"); }), Fault::RowGone);
  EXPECT_EQ(faultOf([&] { set.remove(); }), Fault::RowGone);
  EXPECT_THAT(all(), ElementsAre("3"));
}

TEST_P(Records, RowsThatOthersDeleteAreSkippedAndReadAfresh) {
  addNumbered(5);
  RecordSet walk(*store_, "select * from jfjl order by lsh");
  EXPECT_EQ(walk.get("lsh").text(), "1");
  RecordSet other(*store_, "select * from jfjl where lsh='2' or lsh='3'");
  other.remove();
  other.next();
  other.set("je", 33);
  other.update();
  walk.next();
  EXPECT_EQ(walk.get("je").text(), "33");
  other.remove();
  EXPECT_EQ(faultOf([&] { walk.get("je"); }), Fault::RowGone);
  walk.set("je", 1);
  EXPECT_EQ(faultOf([&] { walk.update(); }), Fault::RowGone);
  store_->settle();
  walk.next();
  EXPECT_EQ(walk.get("lsh").text(), "4");
  EXPECT_THAT(all(), ElementsAre("1", "4", "5"));
}

TEST_P(Records, AWalkGoesOnFromItsFirstRowAfterTheEvent) {
  addNumbered(4);
  for (const bool moved : {false, true}) {
    RecordSet walk(*store_, "select * from jfjl order by lsh");
    EXPECT_EQ(walk.get("lsh").text(), "1");
    store_->settle();
    if (moved) {  // another set puts the first row last
      RecordSet other(*store_, "select * from jfjl where lsh='1'");
      other.set("lsh", "9");
      other.update();
      store_->settle();
    }
    step();
    std::vector<std::string> behind;
    for (walk.next(); !walk.atEnd(); walk.next()) behind.push_back(walk.get("lsh").text());
    EXPECT_THAT(behind, ElementsAre("2", "3", "4"));
  }
}

TEST_P(Records, AWalkReadsEachOfItsRowsWhileAnotherTableIsWritten) {
  addNumbered(4);
  RecordSet walk(*store_, "select * from jfjl order by lsh");
  std::vector<std::string> seen;
  forEach(walk, [&](RecordSet& row) {
    add("czjl", {"yhxm"}, {{row.get("lsh")}});
    seen.push_back(row.get("lsh").text());
  });
  EXPECT_THAT(seen, ElementsAre("1", "2", "3", "4"));
}

TEST_P(Records, GroupsGoOnWhileTheTableChanges) {
  addNumbered(4);
  RecordSet names(*store_, "select xm from jfjl group by xm order by xm");
  std::vector<std::string> visited;
  forEach(names, [&](RecordSet& at) {
    RecordSet rows(*store_, Sql("select * from jfjl where xm='") + at.get("xm") + "'");
    forEach(rows, [](RecordSet& row) { row.remove(); });
    visited.push_back(at.get("xm").text());
    step();
  });
  EXPECT_THAT(visited, ElementsAre("even", "odd"));
}

TEST_P(Records, TheNewRowIsCurrentAndNothingStandsBehindIt) {
  addNumbered(2);
  RecordSet set(*store_, "select * from jfjl");
  set.addNew();
  EXPECT_FALSE(set.atEnd());
  set.set("xm", "new");
  EXPECT_TRUE(set.get("je").isNull());
  set.update();
  EXPECT_EQ(set.get("xm").text(), "new");
  set.set("lsh", "3");
  set.update();
  set.update();
  step();
  EXPECT_EQ(set.get("lsh").text(), "3");
  set.next();
  EXPECT_TRUE(set.atEnd());
  EXPECT_THAT(all(), ElementsAre("1", "2", "3"));
  set.last();
  set.remove();
  set.addNew();
  set.update();
  EXPECT_THAT(all(), ElementsAre("1", "2", "")) << "a row with nothing set is a row";
}

TEST_P(Records, LastOfAnOrderedSet) {
  addNumbered(3000);
  for (int i = 0; i < 3; ++i) {
    RecordSet set(*store_, "select * from jfjl order by lsh");
    set.last();
    EXPECT_EQ(set.get("lsh").text(), "999");
    const bool atEnd = set.atEnd();
    EXPECT_FALSE(atEnd);
    step();
    EXPECT_EQ(set.get("lsh").text(), "999");
    set.next();
    EXPECT_TRUE(set.atEnd());
    set.first();
    EXPECT_EQ(set.get("lsh").text(), "1");
  }
}

TEST_P(Records, AUnitThatIsLeftByAnErrorTakesItsWritesBack) {
  addNumbered(2);
  RecordSet walk(*store_, "select * from jfjl");
  EXPECT_EQ(faultOf([&] {
              Unit unit(*store_);
              walk.set("lsh", "9");
              walk.update();
              walk.next();
              walk.remove();
              walk.addNew();
              walk.set("lsh", "3");
              walk.update();
              EXPECT_TRUE(Unit::openIn(*store_));
              RecordSet(*store_, Sql("select * from jfjl where xm='") + std::string("o'c") + "'");
              unit.finish();
            }),
            Fault::Statement);
  EXPECT_FALSE(Unit::openIn(*store_));
  EXPECT_EQ(faultOf([&] { walk.get("lsh"); }), Fault::RowGone) << "the new row has never been";
  step();
  EXPECT_THAT(all(), ElementsAre("1", "2"));
}

TEST_P(Records, AUnitInsideAUnitJoinsIt) {
  {
    Unit outer(*store_);
    addNumbered(1);
    {
      Unit inner(*store_);
      RecordSet set(*store_, "select * from jfjl");
      set.set("xm", "joined");
      set.update();
      inner.finish();
    }
    EXPECT_TRUE(Unit::openIn(*store_));
    RecordSet unrelated(*store_, "select * from jfjl");
    EXPECT_EQ(unrelated.count(), 1) << "a unit sees its own rows";
    outer.finish();
  }
  EXPECT_FALSE(Unit::openIn(*store_));
  EXPECT_THAT(column("select * from jfjl", "xm"), ElementsAre("joined"));
  const auto inside = [&](bool finished) {
    Unit outer(*store_);
    RecordSet set(*store_, "select * from jfjl");
    set.set("xm", "left");
    set.update();
    { Unit left(*store_); }
    if (!finished) set.set("xm", "more"), set.update();
    outer.finish();
  };
  for (const bool finished : {true, false}) EXPECT_EQ(faultOf([&] { inside(finished); }), Fault::Other);
  EXPECT_FALSE(Unit::openIn(*store_));
  EXPECT_THAT(column("select * from jfjl", "xm"), ElementsAre("joined"))
      << "an inner unit that was left takes all back";
}

TEST_P(Records, AFaultAtAnyCallLeavesAllOrNothing) {
  addNumbered(3);
  support::Failures failures(*store_);
  std::vector<std::string> before = all();
  int number = 1000;
  for (const Fault fault : {Fault::Busy, Fault::Unreadable, Fault::DiskFull, Fault::Disconnected}) {
    if (GetParam().reopens && fault != Fault::Busy) continue;  // opening anew takes its time
    for (const bool forGood : {false, true}) {
      bool struck = true;
      for (int nth = 1; struck; ++nth) {
        ASSERT_LT(nth, 100);
        const long long saved = store_->saved();
        failures.at(nth, fault, forGood);
        try {
          Unit unit(*store_);
          RecordSet set(*store_, "select * from jfjl order by lsh desc");
          set.set("lsh", std::to_string(set.get("lsh").number() + 1));
          set.update();
          for (set.last(); !set.atEnd(); set.next()) set.remove();
          Unit inner(*store_);
          RecordSet added(*store_, "select * from jfjl");
          added.addNew();
          added.set("lsh", std::to_string(++number));
          added.update();
          inner.finish();
          unit.finish();
        } catch (const StoreError& error) {
          EXPECT_EQ(error.what(), support::Failures::words(fault));
        }
        struck = failures.failed() > 0;
        failures.off();
        EXPECT_FALSE(Unit::openIn(*store_));
        const std::vector<std::string> now = all();
        EXPECT_EQ(now == before, struck) << "at call " << nth;
        before = now;
        EXPECT_EQ(store_->saved() - saved, struck ? 0 : 1);
      }
    }
  }
}

TEST_P(Records, WhatHasReachedADiskIsCounted) {
  RecordSet set(*store_, "select * from jfjl"), printed(*store_, "select * from dy_jfjl"),
      settings(*store_, "select * from morvanedjpzb", Connection::Config);
  const auto add = [](RecordSet& to) {
    to.addNew();
    to.update();
  };
  const auto unit = [&](bool finish, const std::function<void()>& write) {
    Unit one(*store_);
    write();
    if (finish) one.finish();
  };
  const struct {
    const char* what;
    std::function<void()> action;
    long long saved;
  } cases[] = {{"a single write", [&] { add(set); }, 1},
               {"a unit", [&] { unit(true, [&] { add(set), add(set); }); }, 1},
               {"a unit inside a unit", [&] { unit(true, [&] { unit(true, [&] { add(set); }); }); }, 1},
               {"the other database", [&] { add(settings); }, 1},
               {"a unit that is left", [&] { unit(false, [&] { add(set); }); }, 0},
               {"a unit of reads", [&] { unit(true, [&] { set.count(); }); }, 0},
               {"nothing to delete", [&] { RecordSet(*store_, "select * from jfjl where xm='a'").removeAll(); }, 0},
               {"a print table", [&] { add(printed); }, 0}};
  for (const auto& each : cases) {
    step();
    const long long before = store_->saved();
    each.action();
    EXPECT_EQ(store_->saved() - before, each.saved) << each.what;
  }
}

}  // namespace
}  // namespace store
