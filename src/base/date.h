// Calendar dates and moments, without time zones: what the office's clock on the wall says.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace base {

struct Date {
  int year = 1900, month = 1, day = 1;

  // The date test of all entry fields: yyyy-m-d with - / . or 年月日 between, months and days with or without a leading
  // zero, a real calendar day of the years 100 to 9999; a time behind it is allowed and dropped. Else nothing.
  static std::optional<Date> parse(std::string_view text);
  Date plusDays(int days) const;
  int daysUntil(Date other) const;  // other less this, in days
  int weekday() const;              // 1 Monday to 7 Sunday

  std::string plain() const;    // yyyy-m-d
  std::string iso() const;      // yyyy-mm-dd
  std::string chinese() const;  // yyyy年m月d日
  std::string digits() const;   // yyyymmdd
  friend auto operator<=>(const Date&, const Date&) = default;
};

struct DateTime {
  Date date;
  int hour = 0, minute = 0, second = 0;

  static std::optional<DateTime> parse(std::string_view text);  // a date alone is midnight
  std::string plain() const;     // yyyy-m-d h:mm:ss; without the time at midnight exactly
  std::string iso() const;       // yyyy-mm-dd hh:mm:ss
  std::string timeText() const;  // h:mm:ss
  DateTime plusSeconds(long long seconds) const;
  friend auto operator<=>(const DateTime&, const DateTime&) = default;
};

// The school term a date lies in by default: 2026学年上学期 for months 2 to 7, otherwise 下学期. January offers the
// past half-year's wording with the new year's number, which the operators expect and overwrite.
std::string defaultTerm(Date today);

}  // namespace base
