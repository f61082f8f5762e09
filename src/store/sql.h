// Statement text as the screens write it: string literals are the statement, everything else is a value in it.
//
//   Sql("select * from xs where bjmc='") + className + "' order by xh"
//
// Only a literal of the source can become statement text; a std::string (or a Value, a number, a date, Money) enters as
// a value, whatever it holds. A value that holds the sign that would end its place (a ' in a quoted text, a # in a
// date) makes the statement fail when it is opened; it never becomes part of the statement.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/value.h"

namespace store {

class Sql {
 public:
  Sql() = default;
  template <std::size_t N> Sql(const char (&literal)[N]) : text_(literal, N - 1) {}

  template <std::size_t N> Sql& operator+=(const char (&literal)[N]) {
    text_.append(literal, N - 1);
    return *this;
  }
  Sql& operator+=(const Sql& other);
  Sql& operator+=(const std::string& value);
  Sql& operator+=(const Value& value);
  template <class T> friend Sql operator+(Sql left, const T& right) {
    left += right;
    return left;
  }

  // "select * from " + a table of the catalogue, with an optional order: for code that is told its table as data.
  static Sql table(std::string_view table, std::string_view order = "") {
    Sql sql("select * from ");
    sql.text_ += table;
    if (!order.empty()) sql.text_.append(" order by ").append(order);
    return sql;
  }

  // A column of the catalogue, for tables of conditions; anything but a plain name raises std::logic_error.
  static Sql column(std::string_view name);

  bool empty() const { return text_.empty(); }
  const std::string& text() const { return text_; }  // the plain statement, for messages and tests
  // Byte ranges [from, to) of text() that came in as values.
  const std::vector<std::pair<std::size_t, std::size_t>>& values() const { return values_; }

 private:
  std::string text_;
  std::vector<std::pair<std::size_t, std::size_t>> values_;
};

}  // namespace store
