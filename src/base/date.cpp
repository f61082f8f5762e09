#include "base/date.h"

#include <chrono>
#include <cstdio>

#include "base/text.h"

namespace base {
namespace {

std::string pad(int number, int width = 2) {
  std::string text = std::to_string(number);
  return std::string(text.size() < static_cast<std::size_t>(width) ? static_cast<std::size_t>(width) - text.size() : 0, '0') + text;
}

std::chrono::year_month_day calendar(const Date& date) {
  return {std::chrono::year(date.year), std::chrono::month(static_cast<unsigned>(date.month)),
          std::chrono::day(static_cast<unsigned>(date.day))};
}

Date ofDays(std::chrono::sys_days days) {
  const std::chrono::year_month_day date(days);
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

// Takes a number of at most `digits` digits off the text's front; -1 when none stands there.
int takeNumber(std::string_view& text, std::size_t digits) {
  int number = 0;
  std::size_t count = 0;
  while (count < text.size() && count <= digits && text[count] >= '0' && text[count] <= '9')
    number = number * 10 + (text[count++] - '0');
  if (count == 0 || count > digits) return -1;
  text.remove_prefix(count);
  return number;
}

bool take(std::string_view& text, std::string_view sign) {
  if (!text.starts_with(sign)) return false;
  text.remove_prefix(sign.size());
  return true;
}

std::optional<Date> takeDate(std::string_view& text) {
  Date date;
  date.year = takeNumber(text, 4);
  const char* between = nullptr;
  for (const char* sign : {"-", "/", ".", "年"})
    if (take(text, sign)) {
      between = sign;
      break;
    }
  if (!between) return std::nullopt;
  const bool chinese = std::string_view(between) == "年";
  date.month = takeNumber(text, 2);
  if (!take(text, chinese ? "月" : between)) return std::nullopt;
  date.day = takeNumber(text, 2);
  if (chinese) take(text, "日");
  if (date.year < 100 || date.month < 1 || date.day < 1 || !calendar(date).ok()) return std::nullopt;
  return date;
}

}  // namespace

std::optional<Date> Date::parse(std::string_view text) {
  const auto moment = DateTime::parse(text);
  return moment ? std::optional(moment->date) : std::nullopt;
}

Date Date::plusDays(int days) const { return ofDays(std::chrono::sys_days(calendar(*this)) + std::chrono::days(days)); }

int Date::daysUntil(Date other) const {
  return static_cast<int>((std::chrono::sys_days(calendar(other)) - std::chrono::sys_days(calendar(*this))).count());
}

int Date::weekday() const {
  return static_cast<int>(std::chrono::weekday(std::chrono::sys_days(calendar(*this))).iso_encoding());
}

std::string Date::plain() const { return std::to_string(year) + "-" + std::to_string(month) + "-" + std::to_string(day); }
std::string Date::iso() const { return pad(year, 4) + "-" + pad(month) + "-" + pad(day); }
std::string Date::chinese() const {
  return std::to_string(year) + "年" + std::to_string(month) + "月" + std::to_string(day) + "日";
}
std::string Date::digits() const { return pad(year, 4) + pad(month) + pad(day); }

std::optional<DateTime> DateTime::parse(std::string_view given) {
  const std::string trimmed = trim(given);
  std::string_view text = trimmed;
  DateTime moment;
  const auto date = takeDate(text);
  if (!date) return std::nullopt;
  moment.date = *date;
  if (text.empty()) return moment;
  if (!take(text, " ") && !take(text, "T")) return std::nullopt;
  while (take(text, " ")) {}
  moment.hour = takeNumber(text, 2);
  if (!take(text, ":")) return std::nullopt;
  moment.minute = takeNumber(text, 2);
  if (take(text, ":")) moment.second = takeNumber(text, 2);
  const bool inDay = moment.hour >= 0 && moment.hour < 24 && moment.minute >= 0 && moment.minute < 60 &&
                     moment.second >= 0 && moment.second < 60;
  if (!text.empty() || !inDay) return std::nullopt;
  return moment;
}

std::string DateTime::timeText() const { return std::to_string(hour) + ":" + pad(minute) + ":" + pad(second); }

std::string DateTime::plain() const {
  return hour == 0 && minute == 0 && second == 0 ? date.plain() : date.plain() + " " + timeText();
}

std::string DateTime::iso() const { return date.iso() + " " + pad(hour) + ":" + pad(minute) + ":" + pad(second); }

DateTime DateTime::plusSeconds(long long seconds) const {
  using namespace std::chrono;
  const auto moment = sys_days(calendar(date)) + hours(hour) + minutes(minute) + std::chrono::seconds(second) +
                      std::chrono::seconds(seconds);
  const auto day = floor<days>(moment);
  const hh_mm_ss time(moment - day);
  return {ofDays(day), static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

std::string defaultTerm(Date today) {
  return std::to_string(today.year) + "学年" + (today.month >= 2 && today.month <= 7 ? "上学期" : "下学期");
}

}  // namespace base
