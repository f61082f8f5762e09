// The made-up school holds together: everything that measures and shows the program stands on it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <set>
#include <tuple>

#include "base/text.h"
#include "sample/people.h"
#include "sample/sample.h"
#include "store/record_set.h"
#include "store/sql.h"
#include "upkeep/password.h"
#include "upkeep/users.h"

namespace {

using store::RecordSet;
using store::Sql;

constexpr std::array<const char*, 13> tables{"zymcb", "bjzl", "sfxmb", "rxxs", "sfbzb", "sfbzbrxxs", "xs",
                                             "jfjl",  "qfjl", "yhxx1", "czjl", "zsgl1", "zsgl2"};

std::size_t checksum(store::Store& store) {
  std::string all;
  for (const char* table : tables) {
    RecordSet rows(store, Sql::table(table));
    const auto columns = rows.fields();
    store::forEach(rows, [&](RecordSet& row) {
      for (const std::string& column : columns) all += row.get(column).text() + "|";
    });
  }
  return std::hash<std::string>()(all);
}

class SampleSchool : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    store_ = std::make_unique<store::Store>();
    written_ = sample::writeSchool(*store_, {150, 1200, 7, {2026, 9, 7}});
  }
  static void TearDownTestSuite() { store_.reset(); }

  RecordSet rows(const Sql& sql) { return RecordSet(*store_, sql); }

  static inline std::unique_ptr<store::Store> store_;
  static inline sample::Written written_;
};

TEST_F(SampleSchool, IsTheSameForTheSameSeedOnly) {
  store::Store same, other;
  sample::writeSchool(same, {150, 1200, 7, {2026, 9, 7}});
  sample::writeSchool(other, {150, 1200, 8, {2026, 9, 7}});
  EXPECT_EQ(checksum(same), checksum(*store_));
  EXPECT_NE(checksum(other), checksum(*store_));
}

TEST_F(SampleSchool, HoldsWhatWasAskedFor) {
  EXPECT_EQ(rows("select * from xs").count(), 150);
  EXPECT_EQ(rows("select * from jfjl").count(), 1200);
  EXPECT_EQ(rows("select * from qfjl").count(), static_cast<long long>(written_.arrears));
  for (const int students : {1, 46}) {
    for (const long long payments : {0LL, 1LL, 20LL * students}) {
      store::Store store;
      sample::writeSchool(store, {students, payments, 1, {2027, 1, 31}});
      EXPECT_EQ(RecordSet(store, "select * from xs").count(), students);
      EXPECT_EQ(RecordSet(store, "select * from jfjl").count(), payments);
    }
  }
  EXPECT_TRUE(sample::faultOf({0, {}, 1, {2026, 9, 7}}));
  EXPECT_TRUE(sample::faultOf({10, 201, 1, {2026, 9, 7}}));
  EXPECT_FALSE(sample::faultOf({100000, 1000000, 1, {2026, 9, 7}}));
}

TEST_F(SampleSchool, LetsBothUsersIn) {
  for (const auto& [name, rights] : {std::pair{sample::superUser, 100}, std::pair{sample::deskUser, 15}}) {
    RecordSet user = rows(Sql("select * from yhxx where yhxm='") + std::string(name) + "'");
    ASSERT_FALSE(user.empty());
    EXPECT_TRUE(upkeep::passwordFits(user.get("yhmm").text(), sample::password));
    const auto granted = upkeep::rightsOf(*store_, name, user.get("yhjb").text());
    EXPECT_EQ(std::ranges::count(granted, true), rights);
  }
}

TEST_F(SampleSchool, GivesStudentsIdentityNumbersThatFit) {
  std::set<std::string> numbers;
  RecordSet students = rows("select * from xs order by xh");
  store::forEach(students, [&](RecordSet& row) {
    const std::string number = row.get("sfzhm").text();
    ASSERT_EQ(number.size(), 18u);
    EXPECT_EQ(number.back(), sample::identityCheck(number));
    EXPECT_EQ(number.substr(6, 8), row.get("csrq").date()->digits());
    EXPECT_EQ((number[16] - '0') % 2 == 1, row.get("xb").text() == "男");
    EXPECT_TRUE(numbers.insert(number).second) << number;
    EXPECT_EQ(row.get("xh").text().size(), 10u);
  });
  EXPECT_EQ(sample::identityCheck("11010519491231002"), 'X');  // the standard's own example
}

TEST_F(SampleSchool, NumbersPaymentsDayByDayAndKeepsReceiptsTogether) {
  using Head = std::tuple<std::string, std::string, std::string, std::string>;
  std::map<std::string, Head> receipts;
  std::map<std::string, int> lines;
  std::string before, receiptBefore = "10000000", lastDay;
  RecordSet payments = rows("select * from jfjl");
  store::forEach(payments, [&](RecordSet& row) {
    const std::string number = row.get("lsh").text(), receipt = row.get("fpbh").text();
    const std::string day = row.get("jfrq").date()->digits();
    ASSERT_EQ(number.size(), 12u);
    EXPECT_EQ(number, before.substr(0, 8) == day ? base::nextNumber(before) : day + "0001");
    EXPECT_LT(before, number);
    EXPECT_LE(day, "20260907");
    EXPECT_NE(row.get("jfrq").date()->weekday(), 7);
    EXPECT_TRUE(receipt == receiptBefore || receipt == base::nextNumber(receiptBefore));
    const Head head{day, row.get("xh").text(), row.get("skr").text(), row.get("jffs").text()};
    EXPECT_EQ(receipts.try_emplace(receipt, head).first->second, head);
    EXPECT_LE(++lines[receipt], 5);
    EXPECT_GT(row.get("je").money(), base::Money());
    before = number;
    receiptBefore = receipt;
    lastDay = day;
  });
  EXPECT_EQ(receipts.size(), written_.receipts);
  EXPECT_GT(rows("select * from jfjl where sftj=''").count(), 0);
  store::forEach(payments, [&](RecordSet& row) {
    EXPECT_EQ(row.get("sftj").text(), row.get("jfrq").date()->digits() == lastDay ? "" : "*");
  });
}

TEST_F(SampleSchool, BalancesTuition) {
  using Key = std::pair<std::string, std::string>;  // student and term
  std::map<Key, base::Money> paid, missing;
  RecordSet payments = rows("select * from jfjl where sfxm='学费'"), arrears = rows("select * from qfjl");
  store::forEach(payments, [&](RecordSet& row) {
    paid[{row.get("xh").text(), row.get("xq").text()}] += row.get("je").money();
  });
  std::set<std::string> states;
  store::forEach(arrears, [&](RecordSet& row) {
    const base::Money owed = row.get("bjje").money(), settled = row.get("sbjje").money();
    const std::string state = row.get("clfs").text();
    states.insert(state);
    const bool closed = state == "结清" || state == "减免";
    EXPECT_EQ(closed, owed == settled);
    EXPECT_EQ(state.empty(), settled.zero());
    EXPECT_EQ(state.empty(), row.get("sbjrq").empty());
    missing[{row.get("xh").text(), row.get("xq").text()}] += state == "减免" ? owed : owed - settled;
  });
  EXPECT_EQ(states, (std::set<std::string>{"", "不足", "减免", "结清"}));
  for (const auto& [key, amount] : paid) {
    RecordSet student = rows(Sql("select * from xs where xh='") + key.first + "'");
    RecordSet standard = rows(Sql("select * from sfbzb where bjmc='") + student.get("bjmc") + "' and sfxmmc='学费'");
    EXPECT_EQ(amount + missing[key], standard.get("je").money()) << key.first << " " << key.second;
  }
}

}  // namespace
