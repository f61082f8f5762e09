#include "base/money.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"

namespace base {
namespace {

constexpr std::size_t places = 4;
constexpr std::int64_t unitsPerYuan = 10000;

// The amount of a number text; nothing beyond the largest amount. Half a unit is rounded away from zero.
std::optional<Money> amountOf(const NumberText& number) {
  std::string decimals = number.decimals;
  const bool roundUp = decimals.size() > places && decimals[places] >= '5';
  decimals.resize(places, '0');
  const std::string digits = number.whole + decimals;
  std::int64_t units = 0;
  for (const char digit : digits) {
    units = units * 10 + (digit - '0');
    if (units > Money::largest().units()) return std::nullopt;
  }
  if (roundUp) ++units;
  if (units > Money::largest().units()) return std::nullopt;
  return Money::ofUnits(number.negative ? -units : units);
}

std::uint64_t magnitude(std::int64_t value) {
  return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

// The text of an amount with so many decimals.
std::string written(bool negative, std::uint64_t whole, std::uint64_t decimals, std::size_t count) {
  std::array<char, 32> buffer;
  char* at = buffer.data() + buffer.size();
  for (std::size_t i = 0; i < count; ++i, decimals /= 10) *--at = static_cast<char>('0' + decimals % 10);
  if (count > 0) *--at = '.';
  do *--at = static_cast<char>('0' + whole % 10);
  while (whole /= 10);
  if (negative) *--at = '-';
  return {at, buffer.data() + buffer.size()};
}

}  // namespace

std::optional<Money> Money::parse(std::string_view text) {
  const NumberText number = readNumber(text);
  if (!number.found() || !blank(number.rest)) return std::nullopt;
  return amountOf(number);
}

Money Money::leading(std::string_view text) {
  const NumberText number = readNumber(text);
  if (!number.found()) return {};
  return amountOf(number).value_or(number.negative ? -largest() : largest());
}

std::string Money::plain() const {
  const std::uint64_t value = magnitude(units_);
  std::uint64_t decimals = value % unitsPerYuan;
  std::size_t count = places;
  for (; count > 0 && decimals % 10 == 0; --count) decimals /= 10;
  return written(units_ < 0, value / unitsPerYuan, decimals, count);
}

std::string Money::fixed2() const {
  const std::uint64_t cents = (magnitude(units_) + 50) / 100;
  return written(units_ < 0 && cents > 0, cents / 100, cents % 100, 2);
}

std::string paddedAmount(Money amount) {
  constexpr std::size_t widest = 8;
  return std::string(widest - std::min(widest, amount.plain().size()), ' ') + amount.fixed2();
}

std::string AmountInWords(Money amount) {
  static constexpr std::array<std::string_view, 10> digits{"零", "壹", "贰", "叁", "肆", "伍", "陆", "柒", "捌", "玖"};
  static constexpr std::array<std::string_view, 15> units{"分", "角", "元", "拾", "佰", "仟", "万", "拾",
                                                          "佰", "仟", "亿", "拾", "佰", "仟", "万"};
  const std::string text = std::to_string(amount.units() / 100);  // cuts to fen
  std::string result;
  for (std::size_t place = 0; place < text.size(); ++place) {
    const char c = text[text.size() - 1 - place];
    const std::string_view unit = place < units.size() ? units[place] : "";
    std::string piece;
    if (c != '0') {
      piece.append(digits[c == '-' ? 0 : static_cast<std::size_t>(c - '0')]).append(unit);
    } else if (place < 2) {
      piece.append(digits[0]).append(unit);  // jiao and fen are always spelled out
    } else if (place == 2) {
      piece = unit;
    } else if (text[text.size() - place] != '0') {
      piece = digits[0];
    }
    result.insert(0, piece);
  }
  return result;
}

}  // namespace base
