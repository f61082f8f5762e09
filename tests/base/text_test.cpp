#include "base/text.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(Text, CountsCharactersAlsoInBrokenText) {
  struct Case {
    std::string text;
    std::size_t length;
    std::string firstTwo, fromSecond, valid;
  };
  const Case cases[] = {
      {"", 0, "", "", ""},
      {"计算机1班", 5, "计算", "算机1班", "计算机1班"},
      {"𠮷a", 2, "𠮷a", "a", "𠮷a"},
      {"\xE8\xAE", 2, "\xE8\xAE", "\xAE", "\uFFFD\uFFFD"},                // cut in the middle
      {"\xC0\xAF", 2, "\xC0\xAF", "\xAF", "\uFFFD\uFFFD"},                // overlong
      {"\xED\xA0\x80", 3, "\xED\xA0", "\xA0\x80", "\uFFFD\uFFFD\uFFFD"},  // half a pair
      {"\xF4\x90\x80\x80", 4, "\xF4\x90", "\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"a\xFF文", 3, "a\xFF", "\xFF文", "a\uFFFD文"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.valid);
    EXPECT_EQ(length(each.text), each.length);
    EXPECT_EQ(left(each.text, 2), each.firstTwo);
    EXPECT_EQ(mid(each.text, 2, 99), each.fromSecond);
    EXPECT_EQ(validUtf8(each.text), each.valid);
    EXPECT_EQ(join(characters(each.text), ""), each.text);
  }
  EXPECT_EQ(mid("20260901", 5, 2), "09");
  EXPECT_EQ(mid("短", 5, 2), "");
}

TEST(Text, TrimsAndCompares) {
  EXPECT_EQ(trim("\t 张 三 \r\n"), "张 三");
  EXPECT_TRUE(blank(" \t\r\n"));
  EXPECT_FALSE(blank("　"));
  EXPECT_TRUE(sameText("Ab班", "aB班"));
  EXPECT_FALSE(sameText("ab", "abc"));
  EXPECT_EQ(upper("x1班"), "X1班");
  EXPECT_EQ(join({"a", "", "a"}, "、"), "a、、a");
}

TEST(Text, NumbersAsTyped) {
  struct Case {
    std::string text;
    bool numeric;
    double leading;
  };
  const Case cases[] = {
      {"", false, 0},        {" ", false, 0},       {"0", true, 0},       {" 12 ", true, 12},
      {"12abc", false, 12},  {"abc", false, 0},     {"-3.5", true, -3.5}, {"+4", true, 4},
      {"- 4", false, 0},     {".5", true, 0.5},     {"5.", true, 5},      {".", false, 0},
      {"1.2.3", false, 1.2}, {"1,234", true, 1234}, {"1,23", false, 1},   {"1e5", false, 1},
      {"1 2", false, 1},     {"１", false, 0},      {"0x10", false, 0},   {"--1", false, 0},
      {",123", false, 0},    {"-0", true, 0},       {"\t7\n", true, 7},   {"20260001", true, 20260001},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(isNumeric(each.text), each.numeric) << each.text;
    EXPECT_EQ(leadingNumber(each.text), each.leading) << each.text;
  }
}

TEST(Text, NumbersInPlainDigits) {
  EXPECT_EQ(plainNumber(10000002), "10000002");
  EXPECT_EQ(plainNumber(12.5), "12.5");
  EXPECT_EQ(plainNumber(-0.0), "0");
  EXPECT_EQ(plainNumber(1e21), "1" + std::string(21, '0'));
  EXPECT_EQ(plainNumber(leadingNumber(std::string(400, '9'))).size(), 309u);
}

TEST(Text, NextNumberOfARunningText) {
  struct Case {
    std::string text, next;
  };
  const Case cases[] = {
      {"0099", "100"},
      {"", "1"},
      {"10000001", "10000002"},
      {"202609010009", "202609010010"},
      {"20260001010001", "20260001010002"},
      {"999999999999999", "1000000000000000"},
      {"1234567890123456", "1234567890123460"},
      {"20260001010001000199", "20260001010001000000"},
  };
  for (const Case& each : cases) EXPECT_EQ(nextNumber(each.text), each.next) << each.text;
  EXPECT_EQ(nextNumber("41", 9), "50");
}

}  // namespace
}  // namespace base
