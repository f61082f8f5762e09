#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/number_text.h"

namespace base {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr int significantDigits = 15;

char upperLetter(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool continues(std::string_view text, std::size_t at, unsigned low, unsigned high) {
  if (at >= text.size()) return false;
  const auto byte = static_cast<unsigned char>(text[at]);
  return byte >= low && byte <= high;
}

// Bytes of the well-formed character at a position; 0 where the text is broken. Overlong forms, surrogates and code
// points beyond the last plane are broken: the second byte's range rules them out.
std::size_t sequence(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  const unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (!continues(text, at + 1, low, high)) return 0;
  for (std::size_t i = 2; i < size; ++i) {
    if (!continues(text, at + i, 0x80, 0xBF)) return 0;
  }
  return size;
}

// The position behind a number of characters; a broken byte counts as one character.
std::size_t skip(std::string_view text, std::size_t from, std::size_t count) {
  for (; count > 0 && from < text.size(); --count) from += std::max<std::size_t>(sequence(text, from), 1);
  return from;
}

// Plain digits of a whole number that is too long to be exact: 15 significant digits, then zeros.
std::string roundedDigits(double value) {
  char buffer[64];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, significantDigits - 1).ptr;
  const std::string_view all(buffer, static_cast<std::size_t>(end - buffer));
  const std::size_t exponentAt = all.find('e');
  std::string digits(all.substr(0, exponentAt));
  std::erase(digits, '.');
  const bool negative = digits.front() == '-';
  const int exponent = static_cast<int>(leadingNumber(all.substr(exponentAt + 1)));
  digits.resize(static_cast<std::size_t>(exponent) + 1 + (negative ? 1 : 0), '0');
  return digits;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  const std::size_t from = text.find_first_not_of(blanks);
  if (from == std::string_view::npos) return {};
  return text.substr(from, text.find_last_not_of(blanks) - from + 1);
}

bool blank(std::string_view text) { return text.find_first_not_of(blanks) == std::string_view::npos; }

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at = skip(text, at, 1)) ++count;
  return count;
}

std::string left(std::string_view text, std::size_t count) { return std::string(text.substr(0, skip(text, 0, count))); }

std::string mid(std::string_view text, std::size_t from, std::size_t count) {
  const std::size_t start = skip(text, 0, from > 0 ? from - 1 : 0);
  return std::string(text.substr(start, skip(text, start, count) - start));
}

std::string upper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upperLetter);
  return result;
}

bool sameText(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return upperLetter(x) == upperLetter(y); });
}

std::size_t SameTextHash::operator()(std::string_view text) const {
  std::uint64_t hash = 14695981039346656037U;  // FNV-1a
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(upperLetter(c))) * 1099511628211U;
  return hash;
}

std::string validUtf8(std::string text) {
  std::size_t valid = 0;  // bytes from the front; mostly all
  for (std::size_t size = 1; size > 0 && valid < text.size(); valid += size) size = sequence(text, valid);
  if (valid == text.size()) return text;
  const std::string_view all(text);
  std::string result(all.substr(0, valid));
  for (std::size_t at = valid; at < all.size();) {
    const std::size_t size = sequence(all, at);
    result += size > 0 ? all.substr(at, size) : replacement;
    at += std::max<std::size_t>(size, 1);
  }
  return result;
}

std::vector<std::string> characters(std::string_view text) {
  std::vector<std::string> result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = skip(text, at, 1);
    result.emplace_back(text.substr(at, end - at));
    at = end;
  }
  return result;
}

std::string join(const std::vector<std::string>& parts, std::string_view between) {
  std::string result;
  for (const std::string& part : parts) {
    if (&part != &parts.front()) result += between;
    result += part;
  }
  return result;
}

bool isNumeric(std::string_view text) {
  const NumberText number = readNumber(text);
  return number.found() && blank(number.rest);
}

double leadingNumber(std::string_view text) {
  const NumberText number = readNumber(text);
  if (!number.found()) return 0;
  const std::string plain = number.whole + "." + number.decimals + "0";
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value, std::chars_format::fixed);
  if (error == std::errc::result_out_of_range) value = std::numeric_limits<double>::max();
  return number.negative && value != 0 ? -value : value;
}

std::string plainNumber(double value) {
  if (value == 0) return "0";  // a negative zero too
  char buffer[400];
  return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr);
}

std::string nextNumber(std::string_view text, int step) {
  const double value = leadingNumber(text) + step;
  return std::abs(value) < 1e15 ? plainNumber(value) : roundedDigits(value);
}

}  // namespace base
