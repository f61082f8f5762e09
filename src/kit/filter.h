// The where clause of a list as a table of conditions. The queries hold them in the session, as statement text;
// printing and export put the same text behind their own columns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"
#include "store/record_set.h"

namespace kit {

// One condition of a chain: what stands before and behind its value. A blank value leaves it out.
struct Condition {
  std::string value;
  store::Sql first;  // behind " where "
  store::Sql next;   // behind " and "
  store::Sql end;
};

enum class Compare { AtMost, Equal, AtLeast };
const std::vector<std::string>& compareSigns();  // "<=", "=", ">="

Condition equals(std::string_view column, std::string value);                       // bjmc='…'
Condition onDate(std::string_view column, Compare compare, const base::Date& day);  // csrq<=#…#

// " where " before the first that has a value, " and " before the others; empty when none has one.
store::Sql chain(const std::vector<Condition>& conditions);

// What a query answers: the clause of the list, and what its bar or its status line says of it (empty: the list's own
// words). A query that was left without asking answers nothing.
struct Filter {
  store::Sql where{};
  std::string heading{};
};

// The key behind each piece, the end behind the last: "  where xm like  '%" key "%' or xb like  '%" key ….
store::Sql keywordChain(const std::vector<store::Sql>& pieces, const std::string& key, const store::Sql& end);

}  // namespace kit
