// A report as data: what stands on its pages and which table it prints. A report has no filter of its own: it prints
// the whole table, in stored order.
#pragma once

#include <string_view>
#include <vector>

namespace reports {

enum class Shows {
  Text,
  Date,
  Rank,
  Number,
  Money
};  // numbers and money stand on the right of their column, ranks amid

struct Column {
  const char* heading;
  const char* column;  // empty: an empty place to write in
  double width;        // in Chinese characters, as a share of the page
  Shows shows = Shows::Text;
};

struct Sum {
  const char* column;
  const char* label = "";  // without one the sum stands below its column
};

enum class Furniture {
  EveryPage,  // title, school, time of printing and page number
  TitleOnce,  // the title stands on the first page alone
  Library,    // a slip of the library: its name at the end, no school and no page number
};

struct Report {
  const char* name;
  const char* title;
  const char* table;
  std::vector<Column> columns;
  std::vector<Sum> sums{};
  std::vector<Column> secondLine{};  // of a card, whose headings stand before the values of each row
  Furniture furniture = Furniture::EveryPage;
  bool grid = false;           // rules between the columns
  const char* total = "合计";  // before the sums that stand below their columns

  bool card() const { return !secondLine.empty(); }
};

const std::vector<Report>& allReports();
const Report& reportNamed(std::string_view name);  // raises std::logic_error for a name that there is none of

}  // namespace reports
