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

std::string padded(std::uint64_t value, std::size_t width) {
  std::string digits = std::to_string(value);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
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
  std::string decimals = padded(value % unitsPerYuan, places);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return (units_ < 0 ? "-" : "") + std::to_string(value / unitsPerYuan) + (decimals.empty() ? "" : "." + decimals);
}

std::string Money::fixed2() const {
  const std::uint64_t cents = (magnitude(units_) + 50) / 100;
  return (units_ < 0 && cents > 0 ? "-" : "") + std::to_string(cents / 100) + "." + padded(cents % 100, 2);
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
