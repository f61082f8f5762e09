// What must hold at the end of any day at the front desk, and after a power cut in the middle of one.
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>

#include "base/text.h"
#include "day/front_desk.h"
#include "sample/sample.h"
#include "shell/statistics.h"
#include "store/files.h"

namespace day {
namespace {

using base::Money;
using store::RecordSet;
using store::Sql;

const sample::Plan school{60, 400, 3, {2026, 9, 7}};
// DAY_ACTIONS=1000 test_day plays longer days than ./test has time for.
const int actions = std::getenv("DAY_ACTIONS") ? std::atoi(std::getenv("DAY_ACTIONS")) : 500;

// The day as it was reported, beside which the databases are held.
struct Books {
  struct Receipt {
    long long lines = 0;
    Money total;
  };
  std::map<std::string, Receipt> receipts;
  std::map<std::string, Money> credited;  // by arrears row
  std::map<std::string, int> happened;    // how often, by what was reported
  std::string digest, underWay;
  std::optional<Receipt> doing;

  explicit Books(store::Store& store) : digest(submittedDigest(store)) {
    RecordSet payments(store, "select * from jfjl");
    store::forEach(payments, [&](RecordSet& row) {
      Receipt& receipt = receipts[row.get("fpbh").trimmed()];
      ++receipt.lines;
      receipt.total += row.get("je").money();
    });
    RecordSet arrears(store, "select * from qfjl");
    store::forEach(arrears, [&](RecordSet& row) { credited[std::to_string(row.mark())] = row.get("sbjje").money(); });
  }

  void note(const std::string& line) {
    std::istringstream in(line);
    std::string what, name, amount;
    in >> what;
    ++happened[what];
    if (what == "begin") in >> underWay;
    if (what == "end") underWay.clear(), doing.reset();
    if (what == "doing" || what == "paid") {
      Receipt receipt;
      if (what == "paid") in >> name;
      in >> receipt.lines >> amount;
      receipt.total = Money::leading(amount);
      if (what == "doing") doing = receipt;
      else receipts[name] = receipt;
    }
    if (what == "credited") in >> name >> amount, credited[name] += Money::leading(amount);
    if (what == "deleted") {
      in >> name >> amount;
      Receipt& receipt = receipts[name];
      receipt.total -= Money::leading(amount);
      if (--receipt.lines == 0) receipts.erase(name);
    }
    if (what == "waived") in >> name, credited.erase(name);
    if (what == "submitted") in >> digest;
  }
};

// No number of a ledger stands in two rows; a receipt number stands for one student.
void expectNumbersOfTheirOwn(store::Store& store) {
  for (const char* table : {"jfjl", "qfjl"}) {
    std::map<std::string, int> times;
    RecordSet rows(store, Sql::table(table));
    store::forEach(rows, [&](RecordSet& row) { ++times[row.get("lsh").trimmed()]; });
    for (const auto& [number, count] : times) EXPECT_EQ(count, 1) << table << " " << number;
  }
  std::map<std::string, std::string> payers;
  RecordSet rows(store, "select fpbh,xh from jfjl");
  store::forEach(rows, [&](RecordSet& row) {
    const auto [payer, first] = payers.try_emplace(row.get("fpbh").trimmed(), row.get("xh").trimmed());
    EXPECT_EQ(payer->second, row.get("xh").trimmed()) << "receipt " << payer->first;
  });
}

// Every receipt, and nothing else, is in the ledger whole; arrears rows were paid what payments against them wrote;
// submitted rows are what they were.
void expectAgreement(store::Store& store, const Books& books) {
  expectNumbersOfTheirOwn(store);
  Books found(store);
  Money reported, ledger;
  for (const auto& [number, receipt] : books.receipts) {
    reported += receipt.total;
    EXPECT_EQ(found.receipts[number].lines, receipt.lines) << "receipt " << number;
    EXPECT_EQ(found.receipts[number].total, receipt.total) << "receipt " << number;
  }
  for (const auto& [number, receipt] : found.receipts) ledger += receipt.total;
  EXPECT_EQ(ledger.fixed2(), reported.fixed2());
  for (const auto& [row, amount] : books.credited)
    EXPECT_EQ(found.credited[row].fixed2(), amount.fixed2()) << "arrears row " << row;
  EXPECT_EQ(submittedDigest(store), books.digest) << "a submitted row has changed";
}

// The card, the overview and the statistics tell the same sums.
void expectSameSums(store::Store& store, Operator& desk) {
  shell::Formzct& console = desk.console();
  const std::string xh = desk.someStudent();
  desk.lookUp(xh);
  Money sum;
  long long count = 0;
  RecordSet all(store, "select * from jfjl");
  Money total;
  store::forEach(all, [&](RecordSet& row) {
    total += row.get("je").money();
    if (row.get("xh").trimmed() == xh) ++count, sum += row.get("je").money();
  });
  const std::string ofStudent =
      count == 0 ? "" : "共有交费记录数：" + base::caption(count) + " 条，累计交费总额：" + sum.fixed2() + " 元";
  EXPECT_TRUE(console.payments.bar.text().ends_with(ofStudent)) << console.payments.bar.text();
  const std::string told = "记录总数：" + base::caption(all.count()) + " 笔，总金额：" + total.fixed2() + " 元";
  EXPECT_TRUE(shell::paymentStatistics(store).totals.starts_with(told));
  console.k3.press();
  console.timer1.tick();
  EXPECT_TRUE(console.payments_overview.bar.text().starts_with(told) || console.payments_overview.list.count() == 0);
  console.payments_overview.button("返回").press();
}

class Days : public testing::TestWithParam<unsigned> {};
INSTANTIATE_TEST_SUITE_P(Seeds, Days, testing::Values(11u, 12u, 13u),
                         [](const auto& seed) { return std::to_string(seed.param); });

TEST_P(Days, LeaveTheBooksInAgreement) {
  support::TestDesk desk;
  sample::writeSchool(desk.store, school);
  Books books(desk.store);
  Operator front(desk.store, GetParam(), [&](const std::string& line) { books.note(line); });
  for (int i = 1; i <= actions; ++i) {
    front.act();
    if (i % 200 == 0) expectSameSums(desk.store, front);
  }
  expectAgreement(desk.store, books);
  for (const auto& [what, times] : std::map<std::string, int>{
           {"paid", 300}, {"credited", 40}, {"waived", 20}, {"deleted", 30}, {"submitted", 20}, {"imported", 5}})
    EXPECT_GT(books.happened[what], times * actions / 1000) << what;
  EXPECT_THAT(front.stops(), testing::IsEmpty());
}

// A folder for a program that dies: in memory where there is such a place, since no machine is switched off here.
struct Folder {
  Folder()
      : path((std::filesystem::exists("/dev/shm") ? std::filesystem::path("/dev/shm")
                                                  : std::filesystem::temp_directory_path()) /
             ("fee-office-day-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(path);
  }
  ~Folder() { std::filesystem::remove_all(path); }
  std::filesystem::path path;
};

// What had been told is there; of the action under way either all came through or nothing.
void takeOver(store::Store& store, Books& books) {
  const Books found(store);
  const bool paying = books.underWay.starts_with("pay"), removing = books.underWay == "remove";
  Money added, creditedBefore, creditedNow;
  for (const auto& [number, receipt] : books.receipts) {
    const auto now = found.receipts.find(number);
    if (removing && (now == found.receipts.end() || now->second.lines == receipt.lines - 1)) continue;
    ASSERT_NE(now, found.receipts.end()) << "receipt " << number << " is lost";
    EXPECT_EQ(now->second.total, receipt.total) << "receipt " << number;
  }
  for (const auto& [number, receipt] : found.receipts) {
    if (books.receipts.contains(number)) continue;
    ASSERT_TRUE(paying && books.doing) << "receipt " << number << " came from nowhere";
    EXPECT_EQ(receipt.lines, books.doing->lines);
    EXPECT_EQ(receipt.total, books.doing->total);
    added += receipt.total;
  }
  for (const auto& [row, amount] : books.credited) {
    creditedBefore += amount;
    creditedNow += found.credited.at(row);
  }
  const Money credited = books.underWay == "payArrears" ? added : Money();
  EXPECT_TRUE(books.underWay == "waive" || creditedNow - creditedBefore == credited);
  EXPECT_TRUE(books.underWay == "submit" || found.digest == books.digest);
  books = found;
}

TEST_P(Days, GoOnAfterThePowerWentInTheMiddle) {
  const Folder folder;
  {
    store::createWhenNew(folder.path);
    store::Store store(folder.path);
    sample::writeSchool(store, school);
  }
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  const pid_t child = fork();
  if (child == 0) {
    try {
      store::Store store(folder.path);
      Operator front(store, GetParam(), [&](const std::string& line) {
        const std::string whole = line + "\n";
        if (write(pipe[1], whole.data(), whole.size()) < 0) _exit(1);
      });
      for (int i = 0; i < actions; ++i) front.act();
    } catch (const std::exception& error) {
      std::fprintf(stderr, "the operator fell: %s\n", error.what());
    }
    _exit(0);
  }
  close(pipe[1]);
  store::Store store(folder.path);
  Books books(store);
  store.close();
  std::mt19937 random(GetParam());
  const int doomed = actions * (300 + static_cast<int>(random() % 400)) / 1000;
  int ended = 0;
  std::string text;
  char buffer[4096];
  for (ssize_t got; (got = read(pipe[0], buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<std::size_t>(got));
    for (std::size_t end; (end = text.find('\n')) != std::string::npos; text.erase(0, end + 1)) {
      const std::string line = text.substr(0, end);
      books.note(line);
      if (line == "end" && ++ended == doomed) {
        usleep(static_cast<useconds_t>(random() % 3000));
        kill(child, SIGKILL);
      }
    }
  }
  close(pipe[0]);
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status)) << "the day was over before the power went";
  takeOver(store, books);
  Operator front(store, GetParam() + 1000, [&](const std::string& line) { books.note(line); });
  for (int i = ended; i < actions; ++i) front.act();
  expectAgreement(store, books);
  EXPECT_THAT(front.stops(), testing::IsEmpty());
}

}  // namespace
}  // namespace day
