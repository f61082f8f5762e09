#include "store/sql.h"

#include <algorithm>
#include <stdexcept>

#include "store/catalogue.h"

namespace store {

Sql Sql::table(std::string_view name) {
  const Table* table = findTable(name);
  if (!table) throw std::logic_error("not a table: " + std::string(name));
  Sql sql("select * from ");
  sql.append(table->name);
  return sql;
}

Sql Sql::column(std::string_view name) {
  const bool plain = !name.empty() && std::ranges::all_of(name, [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
  });
  if (!plain) throw std::logic_error("not a column: " + std::string(name));
  Sql sql;
  sql.append(name);
  return sql;
}

Sql& Sql::operator+=(const Sql& other) {
  const std::size_t offset = text().size();
  const std::size_t ranges = other.values_.size();  // other may be this statement itself
  values_.reserve(values_.size() + ranges);
  for (std::size_t i = 0; i < ranges; ++i) {
    values_.emplace_back(other.values_[i].first + offset, other.values_[i].second + offset);
  }
  append(std::string(other.text()));
  return *this;
}

Sql& Sql::add(const std::string& value) {
  const std::size_t from = text().size();
  values_.emplace_back(from, from + value.size());
  append(value);
  return *this;
}

void Sql::append(std::string_view text) {
  if (made_.empty()) made_.assign(literal_.begin(), literal_.end());
  made_.insert(made_.end(), text.begin(), text.end());
}

}  // namespace store
