// Text is UTF-8 in std::string everywhere; lengths and positions below count characters, not bytes.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace base {

std::string_view trimmed(std::string_view text);  // without blanks, tabs and line ends on both sides
inline std::string trim(std::string_view text) { return std::string(trimmed(text)); }
bool blank(std::string_view text);                                            // nothing left after trimming
std::size_t length(std::string_view text);                                    // in characters
std::string left(std::string_view text, std::size_t count);                   // the first count characters
std::string mid(std::string_view text, std::size_t from, std::size_t count);  // from counts from 1
std::string upper(std::string_view text);                                     // ASCII letters only
bool sameText(std::string_view a, std::string_view b);       // without regard to ASCII case, as the store compares
std::string validUtf8(std::string text);                     // broken sequences become U+FFFD
std::vector<std::string> characters(std::string_view text);  // one entry a character
std::string join(const std::vector<std::string>& parts, std::string_view between);

// Tables whose keys are equal when they are the same text. They are asked with a view, so that a walk over many rows
// makes no string for a key that is known.
struct SameTextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const;
};
struct SameTextEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return sameText(a, b); }
};
template <class Value> using TextMap = std::unordered_map<std::string, Value, SameTextHash, SameTextEqual>;

// Numbers as operators type them.
bool isNumeric(std::string_view text);  // optional sign, digits, optional decimals, blanks around; "" is not numeric
double leadingNumber(std::string_view text);  // the leading number counts, the rest is ignored, 0 when there is none
std::string plainNumber(double value);        // shortest plain decimal text, no exponent: 10000002, 12.5
// A count as captions and messages show it: a number that is not negative gets one blank in front.
inline std::string caption(long long number) { return (number < 0 ? "" : " ") + std::to_string(number); }
// The number of a running text number plus one, in plain digits: "0099" gives "100". Exact to 15 digits, rounded beyond
// as a double is: the numbering rules ask for the step through a number.
std::string nextNumber(std::string_view text, int step = 1);

}  // namespace base
