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

TEST(Catalogue, HoldsEveryTableOnce) {
  const std::string_view main =
      "xs tjs xxfk rxxs sfbzbrxxs zymcb bjzl sfxmb sfbzb jfjl qfjl qfjl_wjf qfjl_je dy_jfjl dy_xs dy_qfjl dy_xxfk "
      "dy_js dy_wpgl dy_zsgl2 dy_kh yhxx yhxx1 czjl czbz mvlyb cjb cjb1 cjsz bys_xs bys_jfjl js gzmcb gzb gzlsb "
      "gzblsb ls_gzb zsgl1 zsgl2 wpfl wpxx wpgl wpkc tsfl tsxx tskc tskc1 tskclsb tsjsz tsjszlx";
  const auto names = split(main, ' ');
  for (const std::string& name : names) {
    const Table* table = findTable(name);
    ASSERT_NE(table, nullptr) << name;
    EXPECT_EQ(table->connection, Connection::Main) << name;
    EXPECT_EQ(findTable(base::upper(name)), table);
  }
  ASSERT_NE(findTable("morvanedjpzb"), nullptr);
  EXPECT_EQ(findTable("morvanedjpzb")->connection, Connection::Config);
  EXPECT_EQ(tables().size(), names.size() + 1);
  EXPECT_EQ(findTable("x"), nullptr);
}

TEST(Catalogue, NamesNoColumnTwiceAndIndexesOnlyWhatIsThere) {
  for (const Table& table : tables()) {
    SCOPED_TRACE(table.name);
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

// One computation relies on each of these: a sum, a condition on a date, a comparison with the empty text.
TEST(Catalogue, TypesWhatTheScreensComputeWith) {
  struct Case {
    std::string_view table, columns;
    Type type;
  };
  const Case cases[] = {
      {"jfjl", "je", Type::Money},
      {"qfjl", "bjje sbjje", Type::Money},
      {"qfjl_je", "yjje sjje ce", Type::Money},
      {"gzlsb", "a0 a28", Type::Money},
      {"jfjl", "jfrq", Type::Date},
      {"qfjl", "qfrq bjrq sbjrq", Type::Date},
      {"xs", "csrq rxrq", Type::Date},
      {"xxfk", "xxsj fksj", Type::Date},
      {"xs", "xh xtbh bsh", Type::Text},
      {"jfjl", "lsh fpbh sftj", Type::Text},
      {"czjl", "gjsj", Type::Text},
      {"czjl", "kjsj", Type::DateTime},
      {"tskc", "ghrq tianshu fakuan", Type::Text},
      {"xs", "xp", Type::Bytes},
      {"yhxx1", "fn", Type::YesNo},
      {"zymcb", "id", Type::Number},
      {"zymcb", "zybh", Type::Text},
  };
  for (const Case& each : cases) {
    for (const std::string& name : split(each.columns, ' ')) {
      const Column* column = findTable(each.table)->find(name);
      ASSERT_NE(column, nullptr) << each.table << "." << name;
      EXPECT_EQ(column->type, each.type) << each.table << "." << name;
    }
  }
  EXPECT_EQ(findTable("xs")->find("stbh"), nullptr);  // a major's deletion counts on its absence
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
