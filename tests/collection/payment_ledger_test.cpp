#include "collection/payment_ledger.h"

#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "support/test_desk.h"

namespace {

using namespace collection;
using base::Money;

const base::DateTime morning{{2026, 9, 7}, 8, 30, 5};

struct NumberCase {
  std::vector<std::pair<std::string, std::string>> rows;  // lsh, fpbh
  std::string lsh, fpbh;
};

TEST(PaymentLedger, NumbersFollowTheLastRow) {
  const NumberCase cases[] = {
      {{}, "202609070001", "10000001"},
      {{{"202609060012", "10000004"}}, "202609070001", "10000005"},
      {{{"202609070009", "10000009"}, {"202609060031", "10000007"}}, "202609070010", "10000010"},
      {{{"202609080001", "10000002"}}, "202609070001", "10000003"},  // a clock that was set back
  };
  for (const NumberCase& one : cases) {
    support::TestDesk desk;
    for (const auto& [lsh, fpbh] : one.rows) desk.add("jfjl", {{"lsh", lsh}, {"fpbh", fpbh}});
    EXPECT_EQ(nextRecordNumber(desk.store, morning.date), one.lsh);
    EXPECT_EQ(nextReceiptNumber(desk.store), one.fpbh);
  }
}

TEST(PaymentLedger, AReceiptIsARowALineUnderOneNumber) {
  support::TestDesk desk;
  const Receipt receipt{
      .xh = "20260001",
      .xm = "王小明",
      .bjmc = "计算机1班",
      .xq = "2026学年下学期",
      .xtbh = "0101001",
      .rxxs = "统招",
      .jffs = "现金",
      .skr = "李芳",
      .jfrq = {2026, 8, 31},
      .settlesArrears = false,
      .lines = {{"学费", Money::yuan(2400), ""}, {"书本费", Money::fen(35050), ""}, {"住宿费", {}, ""}}};
  EXPECT_EQ(saveReceipt(desk.store, receipt, morning), "10000001");
  const std::string head = "|20260001|王小明|计算机1班|2026学年下学期|0101001|2026-8-31|10000001|";
  const std::string tail = "|李芳||现金|统招|\n";
  EXPECT_EQ(desk.dump("jfjl", "lsh|xh|xm|bjmc|xq|xtbh|jfrq|fpbh|sfxm|skr|sftj|jffs|rxxs|bz", "lsh"),
            "202609070001" + head + "学费" + tail + "202609070002" + head + "书本费" + tail + "202609070003" + head +
                "住宿费" + tail);
  EXPECT_EQ(desk.count("select * from jfjl where sftj=''"), 3);
  EXPECT_EQ(desk.value("select * from jfjl where lsh='202609070002'", "je"), "350.50");
  EXPECT_EQ(desk.value("select * from jfjl where lsh='202609070002'", "bsh"), morning.plain());
}

struct SettleCase {
  Money already, paid;
  std::string before, sbjje, clfs;
};

TEST(PaymentLedger, APaymentMovesTheArrearsOn) {
  const SettleCase cases[] = {
      {{}, Money::yuan(40), "", "40.00", "不足"},
      {Money::yuan(40), Money::fen(5999), "不足", "99.99", "不足"},
      {Money::yuan(40), Money::yuan(60), "不足", "100.00", "结清"},
      {Money::yuan(40), Money::yuan(61), "不足", "101.00", "不足"},  // overpaid: the state stays
      {{}, Money::yuan(101), "", "101.00", ""},
  };
  for (const SettleCase& one : cases) {
    support::TestDesk desk;
    desk.add("qfjl",
             {{"lsh", "20260601001"}, {"bjje", Money::yuan(100)}, {"sbjje", one.already}, {"clfs", one.before}});
    settleArrears(desk.store, "20260601001", one.paid, morning.date);
    store::RecordSet row(desk.store, "select * from qfjl");
    EXPECT_EQ(row.get("sbjje").money().fixed2(), one.sbjje);
    EXPECT_EQ(row.get("clfs").text(), one.clfs);
    EXPECT_EQ(row.get("sbjrq").text(), "2026-9-7");
  }
}

void connect(store::Store& store, const std::filesystem::path& folder) {
  store.connect(store::Connection::Main,
                store::connectionText(folder, "\\mv_Database\\morvanegxgl.mdb", store::mainPassword));
}

// Two computers on one shared folder, each a process of its own, collect at the same time.
TEST(PaymentLedger, TwoDesksNeverShareANumber) {
  constexpr int receipts = 25;
  support::FakeDesktop office;
  const auto collect = [&](const std::string& skr) {
    store::Store own(office.programFolder());
    connect(own, office.programFolder());
    for (int i = 0; i < receipts; ++i)
      saveReceipt(own,
                  {.xh = "1",
                   .xm = "",
                   .bjmc = "",
                   .xq = "",
                   .xtbh = "",
                   .rxxs = "",
                   .jffs = "",
                   .skr = skr,
                   .jfrq = morning.date,
                   .settlesArrears = false,
                   .lines = {{"学费", Money::yuan(1), ""}, {"书本费", Money::yuan(2), ""}}},
                  morning);
  };
  std::vector<pid_t> desks;
  for (const char* skr : {"一号", "二号"}) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      try {
        collect(skr);
        _exit(0);
      } catch (const std::exception&) {
        _exit(1);
      }
    }
    desks.push_back(child);
  }
  for (const pid_t desk : desks) {
    int status = -1;
    waitpid(desk, &status, 0);
    EXPECT_EQ(status, 0);
  }
  store::Store own(office.programFolder());
  connect(own, office.programFolder());
  store::RecordSet ledger(own, "select * from jfjl order by lsh");
  std::set<std::string> records, numbers;
  std::set<std::pair<std::string, std::string>> printed;
  store::forEach(ledger, [&](store::RecordSet& row) {
    records.insert(row.get("lsh").text());
    numbers.insert(row.get("fpbh").text());
    printed.emplace(row.get("fpbh").text(), row.get("skr").text());
  });
  EXPECT_EQ(ledger.count(), 4 * receipts);
  EXPECT_EQ(records.size(), 4u * receipts);
  EXPECT_EQ(numbers.size(), 2u * receipts);
  EXPECT_EQ(printed.size(), numbers.size());
  EXPECT_EQ(*numbers.rbegin(), std::to_string(10000000 + 2 * receipts));
}

}  // namespace
