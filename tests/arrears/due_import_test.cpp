#include "arrears/due_import.h"

#include <gmock/gmock.h>

#include "arrears/arrears_ledger.h"
#include "arrears/due_school.h"
#include "kit/rows.h"
#include "store/error.h"

namespace {

using arrears_tests::book;
using arrears_tests::Due;
using base::Money;
using Range = Due::Range;
using support::TestDesk;

constexpr const char* term = "2026 Fall";

Due dueOf(Range range, const std::string& value = "", const std::string& code = "") {
  return {.range = range,
          .value = value,
          .major_code = code,
          .item = std::nullopt,
          .term = term,
          .lead = "7天",
          .deadline = "2026-10-1"};
}

std::optional<int> import(TestDesk& test, const Due& due) {
  return arrears::importDue(test.desk, due, [](const std::string&, long long, long long) {});
}

std::string firstDifference(const std::vector<std::string>& ours, const std::vector<std::string>& plain) {
  for (std::size_t i = 0; i < std::max(ours.size(), plain.size()); ++i) {
    const std::string one = i < ours.size() ? ours[i] : "(end)", other = i < plain.size() ? plain[i] : "(end)";
    if (one != other) return one + " instead of " + other;
  }
  return "";
}

struct Case {
  const char* name;
  Due due;
  bool byClass;
};

Due onlyItem(Due due, const std::string& item) {
  due.item = item;
  return due;
}

TEST(DueImport, addsWhatAStatementARowWouldAdd) {
  const Case cases[] = {
      {"school by class", dueOf(Range::School), true},
      {"school by class, one item", onlyItem(dueOf(Range::School), "Ic卡"), true},
      {"major by class", dueOf(Range::Major, "", "01"), true},
      {"class", dueOf(Range::Class, "JAVA 1班"), true},
      {"school by form", dueOf(Range::School), false},
      {"school by form, one item", onlyItem(dueOf(Range::School), "学费"), false},
      {"major by form", dueOf(Range::Major, "", "02"), false},
      {"form", dueOf(Range::Form, "a类"), false},
      {"no such class", dueOf(Range::Class, "没有这个班"), true},
  };
  long long rows = 0;
  for (const Case& one : cases)
    for (unsigned seed = 1; seed <= 4; ++seed) {
      SCOPED_TRACE(one.name + (" " + std::to_string(seed)));
      TestDesk ours, plain;
      for (TestDesk* test : {&ours, &plain}) {
        arrears_tests::fillSchool(*test, seed);
        test->session.standard_basis_class = one.byClass;
        test->clock.moment.date = {2026, seed % 2 ? 9 : 11, 7};
      }
      const auto added = import(ours, one.due);
      EXPECT_EQ(added.value_or(-1), arrears_tests::importPlainly(plain, one.due));
      EXPECT_EQ(firstDifference(book(ours), book(plain)), "");
      EXPECT_EQ(import(ours, one.due).value_or(0), 0) << "a repeat adds nothing";
      rows += added.value_or(0);
    }
  EXPECT_GT(rows, 300) << "the schools are too small to tell anything";
}

struct OneClass : TestDesk {
  OneClass() {
    session.SessionUser = "李芳";
    session.standard_basis_class = true;
    add("xs", {{"xh", "1001"}, {"xm", "王小明"}, {"bjmc", "会计1班"}, {"xtbh", "0101001"}});
    standard("学费", 1200);
  }
  void standard(const std::string& item, int yuan) {
    add("sfbzb", {{"bjmc", "会计1班"}, {"xq", term}, {"sfxmbh", item}, {"sfxmmc", item}, {"je", Money::yuan(yuan)}});
  }
  void pay(const std::string& item, Money je) {
    add("jfjl", {{"xh", "1001"}, {"sfxm", item}, {"xq", term}, {"je", je}});
  }
};

TEST(DueImport, unpaidAndPartlyPaidItems) {
  OneClass test;
  test.standard("书本费", 300);
  test.standard("住宿费", 500);
  test.pay("书本费", Money::fen(10010));
  test.pay("书本费", Money::fen(5));
  test.pay("住宿费", Money::yuan(501));
  EXPECT_EQ(import(test, dueOf(Range::School)), 2);
  EXPECT_THAT(book(test), testing::ElementsAre("2026907001|1001|王小明|会计1班|0101001|书本费|2026-9-7|2026 "
                                               "Fall|2026-10-1|199.85||0|不足|7|李芳|2026-9-7 8:30:05|",
                                               "2026907002|1001|王小明|会计1班|0101001|学费|2026-9-7|2026 "
                                               "Fall|2026-10-1|1200|Null|0||7|李芳|2026-9-7 8:30:05|"));
  store::RecordSet standard(test.store, "select * from sfbzb where sfxmmc='学费'");
  standard.set("je", Money::yuan(2000));
  standard.update();
  EXPECT_EQ(import(test, dueOf(Range::School)), 0) << "a changed standard leaves the row of an earlier import alone";
}

TEST(DueImport, firstNumberOfTheDay) {
  const struct {
    base::Date today;
    const char* last;
    const char* expected;
  } cases[] = {
      {{2026, 9, 7}, "", "2026907001"},
      {{2026, 9, 17}, "", "2026917001"},
      {{2026, 9, 7}, "20260907005", "2026907001"},  // the entry screen's row of the same day
      {{2026, 9, 17}, "2026917005", "2026917001"},  // an import's
      {{2026, 10, 7}, "", "20261007001"},
      {{2026, 10, 7}, "20261007041", "20261007042"},
      {{2026, 12, 31}, "20261230041", "20261231001"},
  };
  for (const auto& one : cases) {
    OneClass test;
    test.clock.moment.date = one.today;
    if (*one.last) test.add("qfjl", {{"lsh", one.last}, {"xh", "1002"}});
    EXPECT_EQ(import(test, dueOf(Range::School)), 1);
    EXPECT_EQ(test.value("select * from qfjl where xh='1001'", "lsh"), one.expected);
  }
}

// Class after class, entries between them, on a day of a month with one digit: no number is given twice.
TEST(DueImport, numbersPassOverThoseThatStand) {
  for (const int month : {9, 11, 1}) {
    OneClass test;
    test.clock.moment.date = {2026, month, 7};
    for (const char* item : {"学费", "书本费", "住宿费"}) {
      if (item != std::string("学费")) test.standard(item, 300);
      arrears::ArrearsEntry entry;
      entry.debts = {{"补考费", {arrears::Instalment{{2026, 12, 1}, Money::yuan(5)}}}};
      arrears::addArrears(test.store, entry, test.clock);
      EXPECT_EQ(import(test, onlyItem(dueOf(Range::School), item)), 1);
      arrears::addArrears(test.store, entry, test.clock);
    }
    EXPECT_EQ(test.count("select lsh from qfjl group by lsh"), 9) << month;
  }
}

// The other desk imports while the first one lets go of the store between two of its units.
TEST(DueImport, twoDesksBillNobodyTwice) {
  support::FakeDesktop computer;
  store::Store first(computer.programFolder()), second(computer.programFolder());
  for (store::Store* one : {&first, &second})
    one->connect(store::Connection::Main, store::connectionText(computer.programFolder(),
                                                                "\\mv_Database\\morvanegxgl.mdb", store::mainPassword));
  OneClass test;
  kit::Desk here{test.session, first,       test.person,  test.navigator, test.clock,
                 test.printer, test.sheets, test.desktop, test.progress};
  kit::Desk there{test.session, second,      test.person,  test.navigator, test.clock,
                  test.printer, test.sheets, test.desktop, test.progress};
  {
    store::Unit unit(first);
    store::RecordSet students(first, "select * from xs"), standards(first, "select * from sfbzb");
    for (int i = 0; i < 52; ++i)
      kit::addRow(students,
                  {{"xh", std::to_string(1001 + i)}, {"bjmc", "会计1班"}, {"xtbh", std::to_string(1001 + i)}});
    for (int i = 0; i < 100; ++i)
      kit::addRow(standards, {{"bjmc", "会计1班"}, {"xq", term}, {"sfxmmc", "项目" + std::to_string(i)}, {"je", 1}});
    unit.finish();
  }
  const Due all = dueOf(Range::School);
  const auto quietly = [](const std::string&, long long, long long) {};
  std::optional<int> other;
  const auto added = arrears::importDue(here, all, [&](const std::string&, long long done, long long) {
    if (done == 0 || other || store::Unit::openIn(first)) return;
    first.settle();
    other = arrears::importDue(there, all, quietly);
    store::RecordSet payment(second, "select * from jfjl");  // and somebody pays something
    kit::addRow(payment, {{"xh", "1052"}, {"sfxm", "项目0"}, {"xq", term}, {"je", 1}});
  });
  EXPECT_EQ(added.value() + other.value(), 5200);
  EXPECT_EQ(other, 200);
  store::RecordSet ledger(first, "select xh,sfxm from qfjl group by xh,sfxm"),
      numbers(first, "select lsh from qfjl group by lsh");
  EXPECT_EQ(ledger.count(), 5200);
  EXPECT_EQ(numbers.count(), 5200);
}

TEST(DueImport, stopsAtTheCountsLimitAndKeepsItsRows) {
  OneClass test;
  store::Unit unit(test.store);
  for (int i = 1; i < 182; ++i) {
    test.add("xs", {{"xh", std::to_string(2000 + i)}, {"bjmc", "会计1班"}, {"xtbh", "02" + std::to_string(i)}});
    test.standard("项目" + std::to_string(i), i);
  }
  unit.finish();
  try {
    import(test, dueOf(Range::School));
    ADD_FAILURE() << "no overflow";
  } catch (const store::StoreError& error) {
    EXPECT_STREQ(error.what(),
                 "一次最多只能导入32767条应交费记录，超出的部分没有导入！已导入的记录有效，请再次导入以补齐其余记录。");
  }
  EXPECT_EQ(test.count("select * from qfjl"), 32767);
  EXPECT_EQ(import(test, dueOf(Range::School)), 182 * 182 - 32767);
}

// A name that no statement can hold stops the import there; what came before stays, and a repeat goes on from it.
TEST(DueImport, aFaultLeavesWholeRowsAndARepeatGoesOn) {
  OneClass test;
  test.add("xs", {{"xh", "10'2"}, {"xm", "张三"}, {"bjmc", "会计1班"}, {"xtbh", "0101002"}});
  test.add("xs", {{"xh", "1003"}, {"xm", "李四"}, {"bjmc", "会计1班"}, {"xtbh", "0101003"}});
  EXPECT_THROW(import(test, dueOf(Range::School)), store::StoreError);
  EXPECT_EQ(test.dump("qfjl", "xh"), "1001\n");
  EXPECT_FALSE(store::Unit::openIn(test.store));
  store::RecordSet wrong(test.store, "select * from xs where xm='张三'");
  wrong.set("xh", "1002");
  wrong.update();
  EXPECT_EQ(import(test, dueOf(Range::School)), 2);
  EXPECT_EQ(test.dump("qfjl", "xh"), "1001\n1002\n1003\n");
}

}  // namespace
