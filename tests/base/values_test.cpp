#include <gtest/gtest.h>

#include "base/date.h"
#include "base/money.h"
#include "base/text.h"

namespace base {
namespace {

TEST(Words, AmountsAsReceiptsWriteThem) {
  const struct { const char* amount; const char* words; } cases[] = {
      {"0", "零分"}, {"0.05", "伍分"}, {"0.50", "伍角零分"}, {"12.30", "壹拾贰元叁角零分"}, {"10.00", "壹拾元零角零分"},
      {"1005.00", "壹仟零伍元零角零分"}, {"100000", "壹拾元零角零分"}, {"120000", "壹拾贰万元零角零分"},
      {"10000.50", "壹万元伍角零分"}, {"1000000000", "壹拾元零角零分"}, {"12.349", "壹拾贰元叁角肆分"}};
  for (const auto& c : cases) EXPECT_EQ(AmountInWords(*Money::parse(c.amount)), c.words) << c.amount;
}

TEST(Money, ReadsWritesAndRounds) {
  const struct { const char* typed; const char* plain; const char* fixed; const char* padded; } cases[] = {
      {"5", "5", "5.00", "       5.00"}, {"12.5", "12.5", "12.50", "    12.50"}, {"1234567", "1234567", "1234567.00", " 1234567.00"},
      {"12345678", "12345678", "12345678.00", "12345678.00"}, {"-0.005", "-0.005", "-0.01", "  -0.01"}, {"0.004", "0.004", "0.00", "   0.00"}, {" 1.00005 ", "1.0001", "1.00", "  1.00"}};
  for (const auto& c : cases) {
    const auto money = Money::parse(c.typed);
    ASSERT_TRUE(money) << c.typed;
    EXPECT_EQ(money->plain(), c.plain);
    EXPECT_EQ(money->fixed2(), c.fixed);
    EXPECT_EQ(paddedAmount(*money), c.padded);
  }
  for (const char* wrong : {"", " ", "abc", "1a", "1.2.3", "--1", "99999999999999999999", "１２"})
    EXPECT_FALSE(Money::parse(wrong)) << wrong;
  EXPECT_EQ(Money::leading("12abc").plain(), "12");
  EXPECT_EQ(Money::leading("abc").plain(), "0");
  EXPECT_EQ(Money::leading("99999999999999999999") > Money::yuan(1000000), true);
  EXPECT_EQ((Money::fen(10) + Money::fen(20)).plain(), "0.3");
}

TEST(Text, CountsCharactersAndReadsNumbers) {
  EXPECT_EQ(length("王a😀"), 3u);
  EXPECT_EQ(left("王小明", 2), "王小");
  EXPECT_EQ(mid("510102199001011234", 7, 8), "19900101");
  EXPECT_EQ(mid("王小明", 3, 5), "明");
  EXPECT_EQ(trim(" \t王 \r\n"), "王");
  EXPECT_EQ(validUtf8("a\xFF\xC3(b"), "a\uFFFD\uFFFD(b");
  EXPECT_EQ(length("\xE4\xBD"), 2u);
  const struct { const char* text; bool numeric; double leading; } cases[] = {
      {"12", true, 12}, {" -3.5 ", true, -3.5}, {"", false, 0}, {".", false, 0}, {"12abc", false, 12}, {"1e5", false, 1}, {"１", false, 0}, {"0x1F", false, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(isNumeric(c.text), c.numeric) << c.text;
    EXPECT_EQ(leadingNumber(c.text), c.leading) << c.text;
  }
  EXPECT_EQ(nextNumber("0099"), "100");
  EXPECT_EQ(nextNumber("202609070009"), "202609070010");
  EXPECT_EQ(nextNumber(""), "1");
  EXPECT_EQ(nextNumber("12345678901234567890").size(), 20u);  // rounded, but plain digits
  EXPECT_EQ(plainNumber(0.1), "0.1");
}

TEST(Date, TestsAndForms) {
  const struct { const char* text; const char* iso; } good[] = {
      {"2008-9-1", "2008-09-01"}, {"2008/09/01", "2008-09-01"}, {"2008.9.1", "2008-09-01"}, {"2008年9月1日", "2008-09-01"},
      {" 2008-02-29 10:20:30", "2008-02-29"}};
  for (const auto& c : good) {
    const auto date = Date::parse(c.text);
    ASSERT_TRUE(date) << c.text;
    EXPECT_EQ(date->iso(), c.iso);
  }
  for (const char* wrong : {"", "2008-2-30", "2007-02-29", "2008-13-1", "08-1-1x", "20080901", "2008-9", "2008-9/1", "2008-9-1 25:00", "abc"})
    EXPECT_FALSE(Date::parse(wrong)) << wrong;
  const Date day{2026, 2, 28};
  EXPECT_EQ(day.plusDays(1).plain(), "2026-3-1");
  EXPECT_EQ(day.daysUntil({2026, 3, 30}), 30);
  EXPECT_EQ(day.chinese(), "2026年2月28日");
  EXPECT_EQ(day.digits(), "20260228");
  EXPECT_EQ(day.weekday(), 6);
  EXPECT_EQ((DateTime{day, 8, 5, 9}).plain(), "2026-2-28 8:05:09");
  EXPECT_EQ((DateTime{day, 23, 59, 59}).plusSeconds(2).iso(), "2026-03-01 00:00:01");
  EXPECT_EQ(defaultTerm({2026, 1, 5}), "2026学年下学期");
  EXPECT_EQ(defaultTerm({2026, 7, 31}), "2026学年上学期");
}

}  // namespace
}  // namespace base
