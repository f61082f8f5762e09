#include "store/sql.h"

#include <algorithm>
#include <stdexcept>

namespace store {

Sql Sql::column(std::string_view name) {
  const bool plain = !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
  });
  if (!plain) throw std::logic_error("not a column: " + std::string(name));
  Sql sql;
  sql.text_ = name;
  return sql;
}

Sql& Sql::operator+=(const Sql& other) {
  const std::size_t offset = text_.size();
  const std::size_t ranges = other.values_.size();  // other may be this statement itself
  values_.reserve(values_.size() + ranges);
  for (std::size_t i = 0; i < ranges; ++i) {
    values_.emplace_back(other.values_[i].first + offset, other.values_[i].second + offset);
  }
  text_ += other.text_;
  return *this;
}

Sql& Sql::operator+=(const std::string& value) {
  values_.emplace_back(text_.size(), text_.size() + value.size());
  text_ += value;
  return *this;
}

Sql& Sql::operator+=(const Value& value) { return *this += value.text(); }

}  // namespace store
