// Money: a fixed-point amount in yuan with four decimal places; no binary float ever becomes one.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace base {

class Money {
 public:
  constexpr Money() = default;
  static constexpr Money ofUnits(std::int64_t tenThousandths) { return Money(tenThousandths); }
  static constexpr Money yuan(std::int64_t yuan) { return Money(yuan * 10000); }
  static constexpr Money fen(std::int64_t fen) { return Money(fen * 100); }
  // What text can become: a sum of some hundred such amounts still holds. parse() refuses more, leading() stops here.
  static constexpr Money largest() { return Money(9'999'999'999'999'999); }
  static std::optional<Money> parse(
      std::string_view text);                   // strict: nothing unless the whole trimmed text is a number
  static Money leading(std::string_view text);  // lenient: the leading number, 0 when there is none

  constexpr std::int64_t units() const { return units_; }
  constexpr bool zero() const { return units_ == 0; }
  std::string plain() const;   // shortest plain text: "12.5", "300"
  std::string fixed2() const;  // "0.00" form, half away from zero: "12.50"

  constexpr Money operator-() const { return Money(-units_); }
  constexpr Money& operator+=(Money other) {
    units_ += other.units_;
    return *this;
  }
  constexpr Money& operator-=(Money other) {
    units_ -= other.units_;
    return *this;
  }
  friend constexpr Money operator+(Money a, Money b) { return a += b; }
  friend constexpr Money operator-(Money a, Money b) { return a -= b; }
  friend constexpr auto operator<=>(Money, Money) = default;

 private:
  constexpr explicit Money(std::int64_t units) : units_(units) {}
  std::int64_t units_ = 0;
};

// The amount as lists show it: "0.00" form behind blanks that right-align short amounts. The count of blanks follows
// the length of the plain text: 7 for length 1, one fewer for each further character, none from length 8 on.
std::string paddedAmount(Money amount);

// The amount in capital Chinese numerals, for receipts. Digit by digit from the right; a zero digit never writes a
// unit, so 100000 reads 壹拾元零角零分: the receipts of this office are written so.
std::string AmountInWords(Money amount);

}  // namespace base
