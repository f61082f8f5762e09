#include "kit/filter.h"

#include "base/text.h"

namespace kit {

using store::Sql;

const std::vector<std::string>& compareSigns() {
  static const std::vector<std::string> signs{"<=", "=", ">="};
  return signs;
}

namespace {

Condition alike(std::string value, const Sql& before, const Sql& end) {
  return {base::trim(value), before, before, end};
}

}  // namespace

Condition equals(std::string_view column, std::string value) {
  return alike(std::move(value), Sql::column(column) + "='", "'");
}

Condition onDate(std::string_view column, Compare compare, const base::Date& day) {
  const Sql name = Sql::column(column);
  return alike(day.plain(),
               compare == Compare::AtMost  ? name + "<=#"
               : compare == Compare::Equal ? name + "=#"
                                           : name + ">=#",
               "#");
}

Sql chain(const std::vector<Condition>& conditions) {
  Sql filter;
  for (const Condition& one : conditions) {
    if (one.value.empty()) continue;
    if (filter.empty()) filter += Sql(" where ") + one.first;
    else filter += Sql(" and ") + one.next;
    filter += one.value;
    filter += one.end;
  }
  return filter;
}

Sql keywordChain(const std::vector<Sql>& pieces, const std::string& key, const Sql& end) {
  Sql filter;
  for (const Sql& piece : pieces) {
    filter += piece;
    filter += key;
  }
  return filter + end;
}

}  // namespace kit
