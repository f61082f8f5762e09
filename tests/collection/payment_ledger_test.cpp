#include "collection/payment_ledger.h"

#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "support/test_desk.h"

namespace {

using namespace collection;
using base::Money;

const base::DateTime morning{{2026, 9, 7}, 8, 30, 5};

TEST(PaymentLedger, NumbersFollowTheLastRow) {
  struct {
    std::vector<std::pair<std::string, std::string>> rows;  // lsh, fpbh
    std::string lsh, fpbh;
  } const cases[] = {
      {{}, "202609070001", "10000001"},
      {{{"202609060012", "10000004"}}, "202609070001", "10000005"},
      {{{"202609070009", "10000009"}, {"202609060031", "10000007"}}, "202609070010", "10000010"},
      {{{"202609080001", "10000002"}}, "202609070001", "10000003"},  // a clock that was set back
  };
  for (const auto& one : cases) {
    support::TestDesk desk;
    for (const auto& [lsh, fpbh] : one.rows) desk.add("jfjl", {{"lsh", lsh}, {"fpbh", fpbh}});
    EXPECT_EQ(nextRecordNumber(desk.store, morning.date), one.lsh);
    EXPECT_EQ(nextReceiptNumber(desk.store), one.fpbh);
  }
}

Receipt receiptOf(const std::string& skr, std::vector<PaidLine> lines) {
  Receipt receipt;
  receipt.xh = "20260001", receipt.xm = "王小明", receipt.bjmc = "计算机1班", receipt.xq = "2026学年下学期";
  receipt.xtbh = "0101001", receipt.rxxs = "统招", receipt.jffs = "现金", receipt.skr = skr,
  receipt.jfrq = {2026, 8, 31};
  receipt.lines = std::move(lines);
  return receipt;
}

TEST(PaymentLedger, AReceiptIsARowALineUnderOneNumber) {
  support::TestDesk desk;
  EXPECT_EQ(saveReceipt(desk.store, receiptOf("李芳", {{"学费", Money::yuan(2400), ""}, {"住宿费", {}, ""}}), morning),
            "10000001");
  const std::string head = "|20260001|王小明|计算机1班|2026学年下学期|0101001|2026-8-31|10000001|";
  const std::string tail = "|李芳||现金|统招||" + morning.plain() + "\n";
  EXPECT_EQ(desk.dump("jfjl", "lsh|xh|xm|bjmc|xq|xtbh|jfrq|fpbh|sfxm|je|skr|sftj|jffs|rxxs|bz|bsh", "lsh"),
            "202609070001" + head + "学费|2400" + tail + "202609070002" + head + "住宿费|0" + tail);
  EXPECT_EQ(desk.count("select * from jfjl where sftj='' and sftj<>'*'"), 2);
}

// Computers on one shared folder, each a process of its own, that collect at the same time.
TEST(PaymentLedger, TwoDesksNeverShareANumber) {
  constexpr std::size_t receipts = 12;
  support::FakeDesktop office;
  const auto connect = [&](store::Store& own) {
    own.connect(store::Connection::Main,
                store::connectionText(office.programFolder(), "\\mv_Database\\morvanegxgl.mdb", store::mainPassword));
  };
  const auto collect = [&](const std::string& skr, std::size_t times) {
    store::Store own(office.programFolder());
    connect(own);
    for (; times > 0; --times)
      saveReceipt(own, receiptOf(skr, {{"学费", Money::yuan(1), ""}, {"书本费", Money::yuan(2), ""}}), morning);
  };
  std::vector<pid_t> desks;
  for (const char* skr : {"一号", "二号"}) {
    desks.push_back(fork());
    if (desks.back() != 0) continue;
    try {
      collect(skr, receipts);
      _exit(0);
    } catch (const std::exception&) {
      _exit(1);
    }
  }
  for (const pid_t desk : desks) {
    int status = -1;
    waitpid(desk, &status, 0);
    EXPECT_EQ(status, 0);
  }
  store::Store own(office.programFolder());
  connect(own);
  store::RecordSet ledger(own, "select * from jfjl order by lsh");
  std::set<std::string> records, numbers, printed;
  store::forEach(ledger, [&](store::RecordSet& row) {
    records.insert(row.get("lsh").text());
    numbers.insert(row.get("fpbh").text());
    printed.insert(row.get("fpbh").text() + row.get("skr").text());
  });
  EXPECT_EQ(records.size(), 2 * 2 * receipts);
  EXPECT_EQ(numbers.size(), 2 * receipts);
  EXPECT_EQ(printed.size(), numbers.size());
  EXPECT_EQ(*numbers.rbegin(), std::to_string(10000000 + 2 * receipts));
}

}  // namespace
