#include "base/money.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace base {
namespace {

TEST(Money, ReadsWholeTextsStrictlyAndBeginningsLeniently) {
  struct Case {
    std::string text;
    std::optional<std::int64_t> strict;
    std::int64_t lenient;
  };
  const Case cases[] = {
      {"", {}, 0},
      {"  ", {}, 0},
      {"abc", {}, 0},
      {"-", {}, 0},
      {".", {}, 0},
      {"300", 3000000, 3000000},
      {" 12.5 ", 125000, 125000},
      {".5", 5000, 5000},
      {"5.", 50000, 50000},
      {"+7", 70000, 70000},
      {"-0.01", -100, -100},
      {"1,234.50", 12345000, 12345000},
      {"1,234,567", 12345670000, 12345670000},
      {"12,34", {}, 120000},
      {"1234,567", {}, 12340000},
      {"12abc", {}, 120000},
      {"1e3", {}, 10000},
      {"1.2.3", {}, 12000},
      {"１２", {}, 0},
      {"0.1", 1000, 1000},
      {"0.00004", 0, 0},
      {"0.00005", 1, 1},
      {"-0.00005", -1, -1},
      {"2.99995", 30000, 30000},
      {"999999999999.9999", 9999999999999999, 9999999999999999},
      {"999999999999.99995", {}, 9999999999999999},
      {"1000000000000", {}, 9999999999999999},
      {"-99999999999999999999999999", {}, -9999999999999999},
      {"00000000000000000000000000012", 120000, 120000},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    const auto strict = Money::parse(each.text);
    EXPECT_EQ(strict ? std::optional(strict->units()) : std::nullopt, each.strict);
    EXPECT_EQ(Money::leading(each.text).units(), each.lenient);
  }
}

TEST(Money, ShowsItself) {
  struct Case {
    std::int64_t units;
    std::string plain, fixed, padded;
  };
  const Case cases[] = {
      {0, "0", "0.00", "       0.00"},
      {50000, "5", "5.00", "       5.00"},
      {125000, "12.5", "12.50", "    12.50"},
      {3000000, "300", "300.00", "     300.00"},
      {12345600, "1234.56", "1234.56", " 1234.56"},
      {123456700, "12345.67", "12345.67", "12345.67"},
      {1234567, "123.4567", "123.46", "123.46"},
      {50, "0.005", "0.01", "   0.01"},
      {49, "0.0049", "0.00", "  0.00"},
      {-49, "-0.0049", "0.00", " 0.00"},
      {-125050, "-12.505", "-12.51", " -12.51"},
      {INT64_MIN, "-922337203685477.5808", "-922337203685477.58", "-922337203685477.58"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.plain);
    const Money amount = Money::ofUnits(each.units);
    EXPECT_EQ(amount.plain(), each.plain);
    EXPECT_EQ(amount.fixed2(), each.fixed);
    EXPECT_EQ(paddedAmount(amount), each.padded);
  }
}

TEST(Money, InWordsForReceipts) {
  struct Case {
    std::string amount, words;
  };
  const Case cases[] = {
      {"0", "零分"},
      {"0.05", "伍分"},
      {"0.50", "伍角零分"},
      {"12.30", "壹拾贰元叁角零分"},
      {"12.349", "壹拾贰元叁角肆分"},
      {"12.3499", "壹拾贰元叁角肆分"},
      {"10", "壹拾元零角零分"},
      {"1005", "壹仟零伍元零角零分"},
      {"10000.50", "壹万元伍角零分"},
      {"100000", "壹拾元零角零分"},
      {"120000", "壹拾贰万元零角零分"},
      {"1000000000", "壹拾元零角零分"},
      {"100000.01", "壹拾元零角壹分"},
      {"102030.40", "壹拾零贰仟零叁拾元肆角零分"},
      {"123456789012.34", "壹仟贰佰叁拾肆亿伍仟陆佰柒拾捌万玖仟零壹拾贰元叁角肆分"},
      {"-0.05", "零角伍分"},
  };
  for (const Case& each : cases) EXPECT_EQ(AmountInWords(Money::parse(each.amount).value()), each.words) << each.amount;
  EXPECT_EQ(AmountInWords(Money::yuan(30000000000000)), "叁元零角零分");  // the sixteenth place has no unit
}

}  // namespace
}  // namespace base
