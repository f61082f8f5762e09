#include "base/date.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>

#include "base/text.h"

namespace base {
namespace {

using std::chrono::sys_days;

constexpr Date firstDate{100, 1, 1}, lastDate{9999, 12, 31};
constexpr long long secondsPerDay = 86400;

std::chrono::year_month_day civil(Date date) {
  return {std::chrono::year(date.year), std::chrono::month(static_cast<unsigned>(date.month)),
          std::chrono::day(static_cast<unsigned>(date.day))};
}

Date fromCivil(std::chrono::year_month_day day) {
  return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day()))};
}

Date shifted(Date date, long long days) {
  const long long most = date.daysUntil(lastDate), least = date.daysUntil(firstDate);
  return fromCivil(sys_days(civil(date)) + std::chrono::days(std::clamp(days, least, most)));
}

// Reads a text from its beginning; each step says whether it fitted and moves on when it did.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool number(int& value, std::size_t fewest, std::size_t most) {
    const std::size_t size = std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    if (size < fewest || size > most) return false;
    std::from_chars(rest_.data(), rest_.data() + size, value);
    rest_.remove_prefix(size);
    return true;
  }
  bool sign(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }
  bool atEnd() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

struct Separators {
  std::string_view afterYear, afterMonth, afterDay;
};
constexpr std::array<Separators, 4> separators{{{"-", "-", ""}, {"/", "/", ""}, {".", ".", ""}, {"年", "月", "日"}}};

bool readDate(Reader& reader, Date& date) {
  if (!reader.number(date.year, 3, 4)) return false;
  const auto* form = std::find_if(separators.begin(), separators.end(),
                                  [&](const Separators& each) { return reader.sign(each.afterYear); });
  return form != separators.end() && reader.number(date.month, 1, 2) && reader.sign(form->afterMonth) &&
         reader.number(date.day, 1, 2) && reader.sign(form->afterDay) && civil(date).ok() && date >= firstDate;
}

bool readTime(Reader& reader, DateTime& moment) {
  if (!reader.number(moment.hour, 1, 2) || !reader.sign(":") || !reader.number(moment.minute, 1, 2)) return false;
  if (reader.sign(":") && !reader.number(moment.second, 1, 2)) return false;
  return reader.atEnd() && moment.hour < 24 && moment.minute < 60 && moment.second < 60;
}

std::string twoDigits(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }
std::string fourDigits(int value) {
  const std::string digits = std::to_string(value);
  return std::string(4 - std::min<std::size_t>(digits.size(), 4), '0') + digits;
}
std::string minutesAndSeconds(const DateTime& moment) {
  return ":" + twoDigits(moment.minute) + ":" + twoDigits(moment.second);
}

}  // namespace

std::optional<Date> Date::parse(std::string_view text) {
  const auto moment = DateTime::parse(text);
  return moment ? std::optional(moment->date) : std::nullopt;
}

Date Date::plusDays(int days) const { return shifted(*this, days); }

int Date::daysUntil(Date other) const {
  return static_cast<int>((sys_days(civil(other)) - sys_days(civil(*this))).count());
}

int Date::weekday() const { return static_cast<int>(std::chrono::weekday(sys_days(civil(*this))).iso_encoding()); }

std::string Date::plain() const {
  return std::to_string(year) + "-" + std::to_string(month) + "-" + std::to_string(day);
}
std::string Date::iso() const { return fourDigits(year) + "-" + twoDigits(month) + "-" + twoDigits(day); }
std::string Date::chinese() const {
  return std::to_string(year) + "年" + std::to_string(month) + "月" + std::to_string(day) + "日";
}
std::string Date::digits() const { return fourDigits(year) + twoDigits(month) + twoDigits(day); }

std::optional<DateTime> DateTime::parse(std::string_view text) {
  const std::string trimmed = trim(text);
  Reader reader(trimmed);
  DateTime moment;
  if (!readDate(reader, moment.date)) return std::nullopt;
  if (reader.atEnd()) return moment;
  if (!reader.sign(" ")) return std::nullopt;
  while (reader.sign(" ")) {
  }
  return readTime(reader, moment) ? std::optional(moment) : std::nullopt;
}

std::string DateTime::plain() const {
  const bool midnight = hour == 0 && minute == 0 && second == 0;
  return midnight ? date.plain() : date.plain() + " " + timeText();
}
std::string DateTime::iso() const { return date.iso() + " " + twoDigits(hour) + minutesAndSeconds(*this); }
std::string DateTime::timeText() const { return std::to_string(hour) + minutesAndSeconds(*this); }

DateTime DateTime::plusSeconds(long long seconds) const {
  long long days = seconds / secondsPerDay;
  long long inDay = hour * 3600 + minute * 60 + second + seconds % secondsPerDay;
  if (inDay < 0) {
    inDay += secondsPerDay;
    --days;
  } else if (inDay >= secondsPerDay) {
    inDay -= secondsPerDay;
    ++days;
  }
  return {shifted(date, days), static_cast<int>(inDay / 3600), static_cast<int>(inDay / 60 % 60),
          static_cast<int>(inDay % 60)};
}

std::string defaultTerm(Date today) {
  const bool firstHalf = today.month >= 2 && today.month <= 7;
  return std::to_string(today.year) + "学年" + (firstHalf ? "上学期" : "下学期");
}

}  // namespace base
