#include "store/catalogue.h"

#include <algorithm>

#include "base/text.h"
#include "store/catalogue_data.h"

namespace store {
namespace {

std::vector<Table> gather() {
  std::vector<Table> all;
  for (auto* group :
       {studentTables, feeTables, upkeepTables, staffTables, propertyTables, libraryTables, printTables}) {
    std::ranges::move(group(), std::back_inserter(all));
  }
  return all;
}

template <class Named> const Named* findNamed(std::span<const Named> all, std::string_view name) {
  const auto found = std::ranges::find_if(all, [&](const Named& each) { return base::sameText(each.name, name); });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace

const Column* Table::find(std::string_view column) const { return findNamed<Column>(columns, column); }

std::span<const Table> tables() {
  static const std::vector<Table> all = gather();
  return all;
}

const Table* findTable(std::string_view name) { return findNamed(tables(), name); }

Columns without(Columns columns, std::initializer_list<std::string_view> names) {
  std::erase_if(columns, [&](const Column& each) { return std::ranges::find(names, each.name) != names.end(); });
  return columns;
}

Columns with(Columns columns, std::initializer_list<Column> more) {
  columns.insert(columns.end(), more);
  return columns;
}

}  // namespace store
