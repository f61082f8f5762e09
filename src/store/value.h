// One value of one column, as the screens read and write it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/date.h"
#include "base/money.h"

namespace store {

using Bytes = std::vector<std::byte>;

// Column types. A date column also holds the empty text, which is no date and not Null.
enum class Type { Text, Number, Money, Date, DateTime, YesNo, Bytes };

class Value {
 public:
  Value() = default;  // Null: a column never set
  Value(std::string text) : data_(std::move(text)) {}
  Value(std::string_view text) : data_(std::string(text)) {}
  Value(const char* text) : data_(std::string(text)) {}
  Value(bool yes) : data_(yes) {}
  Value(int number) : data_(static_cast<double>(number)) {}
  Value(long long number) : data_(static_cast<double>(number)) {}
  Value(double number) : data_(number) {}
  Value(base::Money money) : data_(money) {}
  Value(base::Date date) : data_(date) {}
  Value(base::DateTime moment) : data_(moment) {}
  Value(Bytes bytes) : data_(std::move(bytes)) {}

  bool isNull() const { return std::holds_alternative<std::monostate>(data_); }
  bool empty() const;                      // Null or the empty text
  std::string text() const;                // as the screens show it: date yyyy-m-d, money plain, Null as ""
  std::string trimmed() const;             // text() without blanks around it
  base::Money money() const;               // leading number of a text; 0 for nothing
  double number() const;                   // the same as a binary float; Money is converted, yes is 1
  bool yes() const;                        // a yes/no value, or a number other than 0
  std::optional<base::Date> date() const;  // also of a text that passes the date test
  std::optional<base::DateTime> moment() const;
  const Bytes& bytes() const;  // empty when it holds no bytes

  template <class T> const T* as() const { return std::get_if<T>(&data_); }
  template <class T> T* as() { return std::get_if<T>(&data_); }
  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<std::monostate, std::string, double, bool, base::Money, base::Date, base::DateTime, Bytes> data_;
};

}  // namespace store
