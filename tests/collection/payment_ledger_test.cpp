#include "collection/payment_ledger.h"

#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "support/failing_engine.h"
#include "support/test_desk.h"

namespace {

using namespace collection;
using base::Money;

Receipt receiptOf(const std::string& skr, std::vector<PaidLine> lines) {
  Receipt receipt;
  receipt.xh = "20260001", receipt.xm = "王小明", receipt.bjmc = "计算机1班", receipt.xq = "2026学年下学期";
  receipt.xtbh = "0101001", receipt.rxxs = "统招", receipt.jffs = "现金", receipt.skr = skr,
  receipt.jfrq = {2026, 8, 31};
  receipt.lines = std::move(lines);
  return receipt;
}

// Two receipts of two lines each follow what stands; no number is ever given twice.
TEST(PaymentLedger, NumbersFollowTheLastRowAndPassOverWhatStands) {
  const struct {
    std::vector<std::pair<std::string, std::string>> rows;  // lsh, fpbh
    const char *records, *receipts;
  } cases[] = {
      {{}, "202609070001 202609070002 202609070003 202609070004", "10000001 10000002"},
      {{{"202609060012", "10000004"}}, "202609070001 202609070002 202609070003 202609070004", "10000005 10000006"},
      {{{"202609070009", "10000009"}, {"202609060031", "10000007"}},
       "202609070010 202609070011 202609070012 202609070013",
       "10000010 10000011"},
      // A clock that ran ahead, once and for a while.
      {{{"202609070001", "10000001"}, {"202609080001", "10000002"}},
       "202609070002 202609070003 202609070004 202609070005",
       "10000003 10000004"},
      {{{"206209070001", "10000009"}, {"202609070002", "10000010"}},
       "202609070001 202609070003 202609070004 202609070005",
       "10000011 10000012"},
      // The last number of a day is followed by the first of the next.
      {{{"202609079998", "10000001"}}, "202609079999 202609080000 202609070001 202609070002", "10000002 10000003"},
      // Receipt numbers that were typed by hand.
      {{{"202609060001", "10000001"}, {"202609060002", "9999999"}},
       "202609070001 202609070002 202609070003 202609070004",
       "10000000 10000002"},
      {{{"202609060001", "10000001"}, {"202609060002", "A100"}},
       "202609070001 202609070002 202609070003 202609070004",
       "1 2"},
      {{{"202609060001", "10000001"}, {"202609060002", "补1"}, {"202609060003", "2"}},
       "202609070001 202609070002 202609070003 202609070004",
       "1 3"},
      // So long that the step through them stands still, or leads back.
      {{{"1", "999999999999999"}, {"2", "1000000000000000"}, {"3", "10000000000000001"}, {"4", "10000000000000000"}},
       "202609070001 202609070002 202609070003 202609070004",
       "100000000000000011 1000000000000000111"},
      {{{"1", "-5"}, {"2", "-4"}, {"3", "-3"}}, "202609070001 202609070002 202609070003 202609070004", "-41 -411"},
  };
  for (const auto& one : cases) {
    support::TestDesk desk;
    for (const auto& [lsh, fpbh] : one.rows) desk.add("jfjl", {{"lsh", lsh}, {"fpbh", fpbh}});
    std::string receipts;
    for (const char* skr : {"李芳", "王芳"})
      receipts +=
          (receipts.empty() ? "" : " ") +
          saveReceipt(desk.store, receiptOf(skr, {{"学费", Money::yuan(1)}, {"书本费", Money::yuan(2)}}), desk.clock);
    std::string records;
    store::RecordSet added(desk.store, "select * from jfjl where xh='20260001'");
    store::forEach(added,
                   [&](store::RecordSet& row) { records += (records.empty() ? "" : " ") + row.get("lsh").trimmed(); });
    EXPECT_EQ(records, one.records);
    EXPECT_EQ(receipts, one.receipts);
  }
}

TEST(PaymentLedger, AReceiptIsARowALineUnderOneNumber) {
  support::TestDesk desk;
  EXPECT_EQ(saveReceipt(desk.store, receiptOf("李芳", {{"学费", Money::yuan(2400)}, {"住宿费", {}}}), desk.clock),
            "10000001");
  const std::string head = "|20260001|王小明|计算机1班|2026学年下学期|0101001|2026-8-31|10000001|";
  const std::string tail = "|李芳||现金|统招||2026-9-7 8:30:05\n";
  EXPECT_EQ(desk.dump("jfjl", "lsh|xh|xm|bjmc|xq|xtbh|jfrq|fpbh|sfxm|je|skr|sftj|jffs|rxxs|bz|bsh", "lsh"),
            "202609070001" + head + "学费|2400" + tail + "202609070002" + head + "住宿费|0" + tail);
  EXPECT_EQ(desk.count("select * from jfjl where sftj='' and sftj<>'*'"), 2);
}

// A desk with two open arrears of one number in sight.
struct ArrearsInSight : support::TestDesk {
  ArrearsInSight() {
    for (const char* sfxm : {"学费", "住宿费"})
      add("qfjl", {{"lsh", "2026907001"},
                   {"xh", "20260001"},
                   {"sfxm", sfxm},
                   {"bjje", Money::yuan(9)},
                   {"sbjje", Money()},
                   {"clfs", ""}});
    receipt.settlesArrears = true;
    store::RecordSet owed(store, "select * from qfjl");
    store::forEach(owed, [&](store::RecordSet& row) {
      receipt.lines.push_back({row.get("sfxm").trimmed(), Money::yuan(9), {row.mark(), "20260001", Money::yuan(9)}});
    });
  }
  // What the store said; empty when the receipt is in.
  std::string save() {
    try {
      saveReceipt(store, receipt, clock);
      return "";
    } catch (const store::StoreError& error) {
      return error.what();
    }
  }
  std::string books() { return dump("qfjl", "sfxm|xh|sbjje|clfs") + dump("jfjl", "sfxm|je"); }
  Receipt receipt = receiptOf("李芳", {});
};

// Whatever the store refuses at whatever moment: the receipt is in, whole, or nothing of it is.
TEST(PaymentLedger, AFaultLeavesNothingOfAReceipt) {
  ArrearsInSight desk;
  support::Failures failures(desk.store);
  const std::string before = desk.books();
  int call = 1;
  for (bool saved = false; !saved; ++call) {
    failures.at(call, store::Fault::DiskFull);
    saved = desk.save().empty();
    failures.off();
    EXPECT_EQ(desk.books(), saved ? "学费|20260001|9|结清\n住宿费|20260001|9|结清\n学费|9\n住宿费|9\n" : before)
        << "call " << call;
  }
  EXPECT_GT(call, 10);
}

// Of two desks that have one open row in sight the second is told.
TEST(PaymentLedger, WhatBecameOfTheArrearsMeanwhileIsToldBeforeAnythingIsWritten) {
  const struct {
    std::string column;
    store::Value value;
    std::string told;
  } cases[] = {{"", {}, "要补交的欠费记录已被其他计算机删除"},
               {"clfs", "减免", "“住宿费”的欠费已由其他计算机减免"},
               {"sbjje", Money::yuan(9), "“住宿费”的欠费已由其他计算机结清"},
               {"sbjje", Money::yuan(1), "“住宿费”的欠费已由其他计算机改动"},
               {"xh", "20260002", "“住宿费”的欠费已由其他计算机改动"}};
  for (const auto& one : cases) {
    ArrearsInSight desk;
    store::RecordSet row(desk.store, "select * from qfjl where sfxm='住宿费'");
    if (one.column.empty()) row.removeAll();
    else row.setAll(one.column, one.value);
    const std::string before = desk.books();
    EXPECT_EQ(desk.save(), one.told + "，请重新加载欠费后再收费！");
    EXPECT_EQ(desk.books(), before);
  }
}

// Computers on one shared folder, each a process of its own, that collect at the same time. One is a day ahead.
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
    support::StillClock clock;
    clock.moment.date.day += skr == "一号" ? 0 : 1;
    for (; times > 0; --times)
      saveReceipt(own, receiptOf(skr, {{"学费", Money::yuan(1)}, {"书本费", Money::yuan(2)}}), clock);
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
