#include "arrears/arrears_ledger.h"

#include "arrears/waiver.h"
#include "arrears_desk.h"

namespace {

using namespace arrears;
using namespace arrears_tests;

const Date today{2026, 9, 7};

Instalment due(int month, long long yuan) { return {{2026, month, 1}, Money::yuan(yuan)}; }

TEST(ArrearsLedger, NumbersGoOnWithTheDayAndLeaveOnePerItemWithoutRows) {
  struct {
    std::string last;
    std::vector<Debt> debts;
    std::string numbers;
  } const cases[] = {
      {"",
       {{"学费", {due(10, 1), due(11, 2), due(12, 3)}}, {"住宿费", {due(10, 4)}}},
       "20260907001 1|20260907002 2|20260907003 3|20260907004 4|"},
      {"20260907012",
       {{"学费", {due(10, 1)}}, {"住宿费", {}}, {"书本费", {due(10, 2)}}},
       "20260907013 1|20260907015 2|"},
      {"20260906044", {{"学费", {std::nullopt, due(11, 1)}}}, "20260907002 1|"},
      {"20260908001", {{"学费", {due(10, 1)}}}, "20260907001 1|"},  // a clock that was set back
      {"2026907012", {{"学费", {due(10, 1), due(11, 2)}}}, "20260907001 1|20260907002 2|"},  // an import's last row
  };
  for (const auto& one : cases) {
    support::TestDesk desk;
    if (!one.last.empty()) desk.add("qfjl", {{"lsh", one.last}, {"xh", "1"}});
    ArrearsEntry entry;
    entry.xh = "20260001";
    entry.debts = one.debts;
    addArrears(desk.store, entry, desk.clock);
    std::string numbers;
    store::RecordSet added(desk.store, "select * from qfjl where xh='20260001'");
    store::forEach(
        added, [&](store::RecordSet& row) { numbers += row.get("lsh").text() + " " + row.get("bjje").text() + "|"; });
    EXPECT_EQ(numbers, one.numbers);
    for (int again = 0; again < 2; ++again) addArrears(desk.store, entry, desk.clock);
    EXPECT_EQ(desk.count("select lsh from qfjl group by lsh"), desk.count("select * from qfjl")) << one.last;
  }
}

TEST(ArrearsLedger, APaymentMovesTheStateOn) {
  struct {
    Money already, paid;
    std::string before, sbjje, clfs;
  } const cases[] = {
      {{}, Money::yuan(40), "", "40", "不足"},
      {Money::yuan(40), Money::fen(5999), "不足", "99.99", "不足"},
      {Money::yuan(40), Money::yuan(60), "不足", "100", "结清"},
      {Money::yuan(40), Money::yuan(61), "不足", "101", "不足"},  // overpaid: the state stays
      {{}, Money::yuan(101), "", "101", ""},
  };
  for (const auto& one : cases) {
    ArrearsDesk desk;
    desk.owe("20260601001", "20260001", Money::yuan(100), one.already, one.before);
    store::RecordSet row(desk.store, "select * from qfjl");
    const ArrearsPayment payment{{row.mark(), "20260001", Money::yuan(100) - one.already}, one.paid};
    settleArrears(desk.store, std::span(&payment, 1), today);
    EXPECT_EQ(desk.states(), "20260601001|2026-9-7|" + one.sbjje + "|" + one.clfs + "\n");
  }
}

struct WaiverDesk : ArrearsDesk {
  WaiverDesk() {
    owe("1", "20260001", Money::yuan(100), Money::yuan(40), "不足");
    owe("2", "20260001", Money::yuan(50), Money::yuan(50), "结清");
    owe("3", "20260001", Money::yuan(30), Money::yuan(30), "减免");
    owe("4", "20260001", Money::yuan(20), Money::yuan(25), "");  // overpaid
    owe("5", "20260002", Money::yuan(70), {}, "");
    owe("6", "20260002", Money::fen(1050), Money::fen(50), "不足");
  }
  void waives(bool yes, const char* question) {
    person.answer(yes, Box::Ask, question, "操作提示");
    if (yes) person.expect(Box::Information, "减免操作成功！     ", "信息提示");
  }
};
constexpr const char* one = "您确认是要减免此笔欠费吗？     ";
constexpr const char* all = "您确认是要减免该生全部欠费吗？     ";

TEST(Waiver, TheCardTestsNothing) {
  WaiverDesk desk;
  EXPECT_FALSE(waiveOne(desk.desk, 0, WaivedFrom::Card));
  desk.person.expect(Box::Information, changedMeanwhile, "信息提示");
  EXPECT_TRUE(waiveOne(desk.desk, 999, WaivedFrom::Card));  // gone: the list is to be read again
  desk.waives(false, one);
  EXPECT_FALSE(waiveOne(desk.desk, desk.mark("1"), WaivedFrom::Card));
  desk.waives(true, one);
  EXPECT_TRUE(waiveOne(desk.desk, desk.mark("2"), WaivedFrom::Card));
  EXPECT_EQ(desk.states(), "1||40|不足\n2|2026-9-7|50|减免\n3||30|减免\n4||25|\n5||0|\n6||0.5|不足\n");
  desk.waives(true, all);
  EXPECT_TRUE(waiveAll(desk.desk, desk.mark("1"), WaivedFrom::Card));
  EXPECT_EQ(desk.states(),
            "1|2026-9-7|100|减免\n2|2026-9-7|50|减免\n3|2026-9-7|30|减免\n4|2026-9-7|20|减免\n"
            "5||0|\n6||0.5|不足\n");
}

TEST(Waiver, TheOverviewRefusesWhatIsDecided) {
  WaiverDesk desk;
  const std::string before = desk.states();
  desk.person.expect(Box::Information, "这已经是减免的记录！     ", "信息提示")
      .expect(Box::Information, "这是一条已结清的记录！     ", "信息提示")
      .expect(Box::Information, "您操作的记录中存在减免或结清记录，请单笔进行操作！     ", "操作提示");
  EXPECT_FALSE(waiveOne(desk.desk, desk.mark("3"), WaivedFrom::Overview));
  EXPECT_FALSE(waiveOne(desk.desk, desk.mark("2"), WaivedFrom::Overview));
  EXPECT_FALSE(waiveOne(desk.desk, desk.mark("4"), WaivedFrom::Overview));  // nothing is owed: without a word
  EXPECT_FALSE(waiveAll(desk.desk, desk.mark("1"), WaivedFrom::Overview));
  EXPECT_EQ(desk.states(), before);
  desk.waives(true, one);
  EXPECT_TRUE(waiveOne(desk.desk, desk.mark("1"), WaivedFrom::Overview));
  desk.waives(true, all);
  EXPECT_TRUE(waiveAll(desk.desk, desk.mark("6"), WaivedFrom::Overview));
  EXPECT_EQ(desk.states(),
            "1|2026-9-7|100|减免\n2||50|结清\n3||30|减免\n4||25|\n5|2026-9-7|70|减免\n"
            "6|2026-9-7|10.5|减免\n");
}

// Of two rows with one number the selected one alone; nothing when it is not the row any more that was asked about.
TEST(Waiver, TakesTheSelectedRowAsItWasAskedAbout) {
  WaiverDesk desk;
  const std::int64_t selected = desk.mark("1");
  desk.set("5", "lsh", "1");
  desk.waives(true, one);
  EXPECT_TRUE(waiveOne(desk.desk, selected, WaivedFrom::Overview));
  EXPECT_EQ(desk.dump("qfjl", "clfs", "lsh"), "减免\n\n结清\n减免\n\n不足\n");

  desk.person.answer(true, Box::Ask, all, "操作提示").meanwhile([&] { desk.set("6", "sbjje", Money::yuan(5)); });
  desk.told(changedMeanwhile);
  EXPECT_TRUE(waiveAll(desk.desk, desk.mark("6"), WaivedFrom::Card));
  EXPECT_EQ(desk.count("select * from qfjl where xh='20260002' and clfs='减免'"), 0);
}

}  // namespace
