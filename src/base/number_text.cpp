#include "base/number_text.h"

#include <algorithm>

namespace base {
namespace {

constexpr std::size_t groupSize = 3;

std::string_view digitsAt(std::string_view text) {
  const std::size_t end = text.find_first_not_of("0123456789");
  return text.substr(0, end);
}

// The groups of three behind the first digits, and how much text they take; nothing when they are not well formed.
std::string groups(std::string_view text, std::size_t& taken) {
  std::string digits;
  taken = 0;
  while (text.substr(taken).starts_with(',')) {
    const std::string_view group = digitsAt(text.substr(taken + 1));
    if (group.size() != groupSize) {
      taken = 0;
      return {};
    }
    digits += group;
    taken += 1 + groupSize;
  }
  return digits;
}

}  // namespace

NumberText readNumber(std::string_view text) {
  NumberText number;
  std::string_view rest = text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  if (rest.starts_with('-') || rest.starts_with('+')) {
    number.negative = rest.front() == '-';
    rest.remove_prefix(1);
  }
  number.whole = digitsAt(rest);
  rest.remove_prefix(number.whole.size());
  if (!number.whole.empty() && number.whole.size() <= groupSize) {
    std::size_t taken = 0;
    number.whole += groups(rest, taken);
    rest.remove_prefix(taken);
  }
  if (rest.starts_with('.')) {
    number.decimals = digitsAt(rest.substr(1));
    if (number.found()) rest.remove_prefix(1 + number.decimals.size());
  }
  number.rest = rest;
  return number;
}

}  // namespace base
