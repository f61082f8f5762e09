#include "base/date.h"

#include <gtest/gtest.h>

namespace base {
namespace {

std::string isoOf(const std::optional<Date>& date) { return date ? date->iso() : "none"; }

TEST(Date, ReadsWhatOperatorsType) {
  const std::pair<std::string, std::string> cases[] = {
      {"2008-9-1", "2008-09-01"},
      {" 2008-09-01 ", "2008-09-01"},
      {"2008/9/1", "2008-09-01"},
      {"2008.9.1", "2008-09-01"},
      {"2008年9月1日", "2008-09-01"},
      {"2008-09-01 10:20:30", "2008-09-01"},
      {"2008-9-1  8:05", "2008-09-01"},
      {"2008-2-29", "2008-02-29"},
      {"100-1-1", "0100-01-01"},
      {"9999-12-31", "9999-12-31"},
      {"", "none"},
      {"2008", "none"},
      {"2008-9", "none"},
      {"08-9-1", "none"},
      {"099-9-1", "none"},
      {"10000-1-1", "none"},
      {"2007-2-29", "none"},
      {"2008-2-30", "none"},
      {"2008-0-1", "none"},
      {"2008-13-1", "none"},
      {"2008-4-0", "none"},
      {"2008-001-1", "none"},
      {"2008-9/1", "none"},
      {"2008年9月1", "none"},
      {"2008-9-1x", "none"},
      {"2008-9-1 24:00:00", "none"},
      {"2008-9-1 10:60", "none"},
      {"2008-9-1 10", "none"},
      {"-2008-9-1", "none"},
      {"二〇〇八年九月一日", "none"},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(isoOf(Date::parse(text)), expected) << text;
}

TEST(Date, ShowsItself) {
  const Date date{2008, 9, 1};
  EXPECT_EQ(date.plain(), "2008-9-1");
  EXPECT_EQ(date.chinese(), "2008年9月1日");
  EXPECT_EQ(date.digits(), "20080901");
  const std::pair<std::string, std::string> moments[] = {
      {"2008-9-1", "2008-9-1"}, {"2008-9-1 0:0:1", "2008-9-1 0:00:01"}, {"2008-09-01 08:05", "2008-9-1 8:05:00"}};
  for (const auto& [text, plain] : moments) EXPECT_EQ(DateTime::parse(text).value().plain(), plain);
  EXPECT_EQ(DateTime::parse("2008-9-1 8:05:00").value().iso(), "2008-09-01 08:05:00");
  EXPECT_EQ(DateTime::parse("2008-9-1").value().timeText(), "0:00:00");
}

TEST(Date, CountsDays) {
  EXPECT_EQ((Date{2008, 2, 28}.plusDays(2).plain()), "2008-3-1");
  EXPECT_EQ((Date{2008, 3, 1}.plusDays(-366).plain()), "2007-3-1");
  EXPECT_EQ((Date{2026, 1, 1}.plusDays(INT_MAX).plain()), "9999-12-31");
  EXPECT_EQ((Date{2026, 1, 1}.plusDays(INT_MIN).plain()), "100-1-1");
  EXPECT_EQ((Date{2007, 12, 31}.daysUntil({2008, 12, 31})), 366);
  EXPECT_EQ((Date{2008, 1, 2}.daysUntil({2008, 1, 1})), -1);
  EXPECT_EQ((Date{2026, 11, 22}.weekday()), 7);
  EXPECT_EQ((Date{2026, 11, 23}.weekday()), 1);
}

TEST(Date, CountsSecondsAcrossMidnight) {
  const auto noon = DateTime{{2008, 12, 31}, 12, 0, 0};
  EXPECT_EQ(noon.plusSeconds(12 * 3600).plain(), "2009-1-1");
  EXPECT_EQ(noon.plusSeconds(-12 * 3600 - 1).plain(), "2008-12-30 23:59:59");
  EXPECT_EQ(noon.plusSeconds(86400LL * 365 * 1000000).date.plain(), "9999-12-31");
}

TEST(Date, NamesTheTerm) {
  const std::pair<Date, std::string> cases[] = {{{2026, 1, 31}, "2026学年下学期"},
                                                {{2026, 2, 1}, "2026学年上学期"},
                                                {{2026, 7, 31}, "2026学年上学期"},
                                                {{2026, 8, 1}, "2026学年下学期"}};
  for (const auto& [date, term] : cases) EXPECT_EQ(defaultTerm(date), term);
}

}  // namespace
}  // namespace base
