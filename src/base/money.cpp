#include "base/money.h"

#include <limits>

#include "base/text.h"

namespace base {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max() / 2;

struct Scan {
  std::int64_t units = 0;
  bool digits = false, whole = true;  // whole: nothing but the number, within bounds
};

// Reads the leading number of a text without blanks in front; digits beyond the fourth decimal round half away from zero.
Scan scan(std::string_view text) {
  Scan result;
  std::size_t at = 0;
  const bool negative = !text.empty() && text[0] == '-';
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) ++at;
  int decimals = -1;
  bool up = false;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '.' && decimals < 0) {
      decimals = 0;
      continue;
    }
    if (c < '0' || c > '9') break;
    result.digits = true;
    if (decimals >= 4) {
      up = up || (decimals == 4 && c >= '5');
    } else if (result.units > (most - 9) / 10) {
      result.units = most;
      result.whole = false;
      continue;
    } else {
      result.units = result.units * 10 + (c - '0');
    }
    if (decimals >= 0) ++decimals;
  }
  for (int i = decimals < 0 ? 0 : decimals; i < 4; ++i) {
    if (result.units > most / 10) {
      result.units = most;
      result.whole = false;
      break;
    }
    result.units *= 10;
  }
  if (up) ++result.units;
  if (negative) result.units = -result.units;
  result.whole = result.whole && result.digits && at == text.size();
  return result;
}

}  // namespace

std::optional<Money> Money::parse(std::string_view text) {
  const Scan number = scan(trim(text));
  if (!number.whole) return std::nullopt;
  return Money(number.units);
}

Money Money::leading(std::string_view text) { return Money(scan(trim(text)).units); }

std::string Money::plain() const {
  const std::int64_t size = units_ < 0 ? -units_ : units_;
  std::string text = std::to_string(size / 10000);
  if (const std::int64_t rest = size % 10000; rest != 0) {
    std::string decimals = std::to_string(10000 + rest).substr(1);
    while (decimals.back() == '0') decimals.pop_back();
    text += "." + decimals;
  }
  return (units_ < 0 ? "-" : "") + text;
}

std::string Money::fixed2() const {
  const std::int64_t fen = ((units_ < 0 ? -units_ : units_) + 50) / 100;
  return (units_ < 0 && fen != 0 ? "-" : "") + std::to_string(fen / 100) + "." + std::to_string(100 + fen % 100).substr(1);
}

std::string paddedAmount(Money amount) {
  const std::size_t size = amount.plain().size();
  return std::string(size < 8 ? 8 - size : 0, ' ') + amount.fixed2();
}

std::string AmountInWords(Money amount) {
  static const std::vector<std::string> digits = characters("零壹贰叁肆伍陆柒捌玖");
  static const std::vector<std::string> units = characters("分角元拾佰仟万拾佰仟亿拾佰仟万");
  const std::string fen = std::to_string(amount.units() / 100);
  std::string words;
  for (std::size_t place = 0; place < fen.size(); ++place) {
    const std::size_t at = fen.size() - 1 - place;
    const char c = fen[at];
    const std::string unit = place < units.size() ? units[place] : "";
    if (c != '0') words = digits[c == '-' ? 0 : static_cast<std::size_t>(c - '0')] + unit + words;
    else if (place < 2) words = digits[0] + unit + words;
    else if (place == 2) words = unit + words;
    else if (fen[at + 1] != '0') words = digits[0] + words;
  }
  return words;
}

}  // namespace base
