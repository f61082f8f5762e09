#include "store/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "base/text.h"
#include "store/database.h"
#include "store/store.h"

namespace store {
namespace {

std::vector<std::string> split(std::string_view list, char between) {
  std::vector<std::string> parts;
  std::istringstream stream{std::string(list)};
  for (std::string part; std::getline(stream, part, between);) parts.push_back(part);
  return parts;
}

TEST(Catalogue, NamesNothingTwiceAndIndexesOnlyWhatIsThere) {
  EXPECT_EQ(findTable("x"), nullptr);
  EXPECT_EQ(findTable("xs")->find("stbh"), nullptr) << "a major's deletion counts on its absence";
  for (const Table& table : tables()) {
    SCOPED_TRACE(table.name);
    EXPECT_EQ(findTable(base::upper(table.name)), &table);
    std::set<std::string> seen;
    for (const Column& column : table.columns) {
      EXPECT_TRUE(seen.insert(base::upper(column.name)).second) << column.name;
      EXPECT_EQ(table.find(base::upper(column.name)), &column);
    }
    EXPECT_FALSE(seen.contains("ROW_NO"));
    std::set<std::string_view> indexes;
    for (const std::string_view index : table.indexes) {
      EXPECT_TRUE(indexes.insert(index).second) << index;
      for (const std::string& column : split(index, ',')) EXPECT_NE(table.find(column), nullptr) << column;
    }
  }
}

TEST(Catalogue, StandsOnTheEngine) {
  Store store;
  for (const Table& table : tables()) {
    const auto present = store.database(table.connection).engine().columnsOf(table.name);
    std::vector<std::string> expected{"row_no"};
    for (const Column& column : table.columns) expected.emplace_back(column.name);
    EXPECT_EQ(present, expected) << table.name;
  }
}

// A row moves to its copy by column names.
TEST(Catalogue, CopiesTakeTheRowsOfTheirSource) {
  const std::pair<std::string_view, std::string_view> copies[] = {
      {"bys_xs", "xs"},  {"bys_jfjl", "jfjl"}, {"dy_xs", "xs"}, {"dy_jfjl", "jfjl"}, {"cjb1", "cjb"},
      {"ls_gzb", "gzb"}, {"dy_xxfk", "xxfk"},  {"dy_js", "js"}, {"dy_wpgl", "wpgl"}, {"dy_zsgl2", "zsgl2"}};
  for (const auto& [copy, source] : copies) {
    for (const Column& column : findTable(copy)->columns) {
      const Column* original = findTable(source)->find(column.name);
      ASSERT_NE(original, nullptr) << copy << "." << column.name;
      EXPECT_EQ(original->type, column.type) << copy << "." << column.name;
    }
  }
}

}  // namespace
}  // namespace store
