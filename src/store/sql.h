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
#include <type_traits>
#include <utility>
#include <vector>

#include "store/value.h"

namespace store {

class Sql {
 public:
  constexpr Sql() = default;
  // While it compiles: what is made at run time can never enter here.
  template <std::size_t N> consteval Sql(const char (&literal)[N]) : literal_(literal, N - 1) {}

  Sql& operator+=(const Sql& other);
  template <class T>
  requires(!std::is_array_v<T> && !std::is_same_v<T, Sql>) Sql& operator+=(const T& value) { return add(value); }
  friend Sql operator+(Sql left, const Sql& right) { return left += right; }
  template <class T>
  requires(!std::is_array_v<T> && !std::is_same_v<T, Sql>) friend Sql operator+(Sql left, const T& value) {
    return left.add(value);
  }

  // For code that is told its names as data: "select * from " + a table of the catalogue; a column. What is no table,
  // and what is no plain name, raises std::logic_error.
  static Sql table(std::string_view name);
  static Sql column(std::string_view name);

  bool empty() const { return text().empty(); }
  // The plain statement, for messages and tests; good until the statement changes.
  std::string_view text() const { return made_.empty() ? literal_ : std::string_view(made_.data(), made_.size()); }
  // Byte ranges [from, to) of text() that came in as values.
  const std::vector<std::pair<std::size_t, std::size_t>>& values() const { return values_; }

 private:
  friend struct MadeUpSql;  // the tests' own door
  Sql& add(const std::string& value);
  Sql& add(const Value& value) { return add(value.text()); }
  void append(std::string_view text);

  std::string_view literal_;  // all of it, as long as nothing was added
  std::vector<char> made_;
  std::vector<std::pair<std::size_t, std::size_t>> values_;
};

}  // namespace store
