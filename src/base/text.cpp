#include "base/text.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace base {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// The length in bytes of the character at `from`; 1 for a byte that begins no proper sequence.
std::size_t sequence(std::string_view text, std::size_t from, bool& proper) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char lead = byte(from);
  proper = true;
  if (lead < 0x80) return 1;
  const std::size_t wanted = lead >= 0xF0 && lead <= 0xF4 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
  proper = wanted != 0 && lead <= 0xF4 && from + wanted <= text.size();
  for (std::size_t i = 1; proper && i < wanted; ++i) proper = (byte(from + i) & 0xC0) == 0x80;
  if (proper && wanted == 3) proper = !(lead == 0xE0 && byte(from + 1) < 0xA0) && !(lead == 0xED && byte(from + 1) > 0x9F);
  if (proper && wanted == 4) proper = !(lead == 0xF0 && byte(from + 1) < 0x90) && !(lead == 0xF4 && byte(from + 1) > 0x8F);
  return proper ? wanted : 1;
}

std::size_t step(std::string_view text, std::size_t from) {
  bool proper = true;
  return sequence(text, from, proper);
}

// Where the character with this number (from 0) begins; the text's end when there are fewer.
std::size_t offsetOf(std::string_view text, std::size_t character) {
  std::size_t at = 0;
  for (; character > 0 && at < text.size(); --character) at += step(text, at);
  return at;
}

}  // namespace

std::string trim(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

bool blank(std::string_view text) {
  for (const char c : text)
    if (!isBlank(c)) return false;
  return true;
}

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += step(text, at)) ++count;
  return count;
}

std::string left(std::string_view text, std::size_t count) { return std::string(text.substr(0, offsetOf(text, count))); }

std::string mid(std::string_view text, std::size_t from, std::size_t count) {
  const std::string_view rest = text.substr(offsetOf(text, from == 0 ? 0 : from - 1));
  return std::string(rest.substr(0, offsetOf(rest, count)));
}

std::string upper(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return result;
}

bool sameText(std::string_view a, std::string_view b) { return upper(a) == upper(b); }

std::string validUtf8(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    bool proper = true;
    const std::size_t bytes = sequence(text, at, proper);
    result += proper ? std::string(text.substr(at, bytes)) : "\uFFFD";
    at += bytes;
  }
  return result;
}

std::vector<std::string> characters(std::string_view text) {
  std::vector<std::string> result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t bytes = step(text, at);
    result.emplace_back(text.substr(at, bytes));
    at += bytes;
  }
  return result;
}

std::string join(const std::vector<std::string>& parts, std::string_view between) {
  std::string result;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i) result += between;
    result += parts[i];
  }
  return result;
}

bool isNumeric(std::string_view text) {
  const std::string trimmed = trim(text);
  std::size_t at = !trimmed.empty() && (trimmed[0] == '-' || trimmed[0] == '+') ? 1 : 0;
  bool digits = false, point = false;
  for (; at < trimmed.size(); ++at) {
    if (isDigit(trimmed[at])) digits = true;
    else if (trimmed[at] == '.' && !point) point = true;
    else return false;
  }
  return digits;
}

double leadingNumber(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && isBlank(text[at])) ++at;
  std::string number;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) number += text[at++];
  for (bool point = false; at < text.size() && (isDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
    point = point || text[at] == '.';
    number += text[at];
  }
  return std::strtod(number.c_str(), nullptr);
}

std::string plainNumber(double value) {
  if (!std::isfinite(value)) return "0";
  if (value == std::floor(value)) {
    char whole[400];
    std::snprintf(whole, sizeof whole, "%.0f", value == 0 ? 0.0 : value);
    return whole;
  }
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", value);
  const std::string shortest = text;
  if (shortest.find('e') == std::string::npos) return shortest;
  char fixed[400];
  std::snprintf(fixed, sizeof fixed, "%.20f", value);
  std::string plain = fixed;
  while (plain.back() == '0') plain.pop_back();
  if (plain.back() == '.') plain.pop_back();
  return plain;
}

std::string nextNumber(std::string_view text, int by) { return plainNumber(leadingNumber(text) + by); }

}  // namespace base
