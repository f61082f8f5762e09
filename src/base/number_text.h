// The number at the beginning of a text, as operators type it, taken apart; texts and amounts both build on it.
#pragma once

#include <string>
#include <string_view>

namespace base {

struct NumberText {
  bool negative = false;
  std::string whole;      // digits before the point, without the commas between thousands
  std::string decimals;   // digits behind it
  std::string_view rest;  // what follows the number

  bool found() const { return !whole.empty() || !decimals.empty(); }
};

// Leading blanks, a sign, digits with or without a comma before each group of three, one point. The commas count only
// when the whole groups are right: "1,234" is 1234, but of "12,5" the number is 12.
NumberText readNumber(std::string_view text);

}  // namespace base
