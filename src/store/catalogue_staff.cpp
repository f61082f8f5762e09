// Teachers and their pay.
#include <array>

#include "store/catalogue_data.h"

namespace store {
namespace {

// The pay of a teacher's month side by side: one column for each pay item, by its rank.
Columns payPivotColumns() {
  static constexpr std::array<std::string_view, 29> items{
      "a0",  "a1",  "a2",  "a3",  "a4",  "a5",  "a6",  "a7",  "a8",  "a9",  "a10", "a11", "a12", "a13", "a14",
      "a15", "a16", "a17", "a18", "a19", "a20", "a21", "a22", "a23", "a24", "a25", "a26", "a27", "a28"};
  Columns columns{text("gh"), text("jsxm"), text("yf"), text("yhkh")};
  for (const std::string_view item : items) columns.push_back(money(item));
  columns.push_back(marker);
  return columns;
}

}  // namespace

Columns teacherColumns() {
  return {text("gh"),   text("jsxm"),  text("xb"),   date("csrq"),  text("mz"),     text("hf"),   text("zzmm"),
          date("rdsj"), text("sfzhm"), text("jtzz"), text("hukiu"), text("jg"),     text("zgxl"), text("byxx"),
          text("zymc"), text("zzzt"),  text("zw"),   text("zc"),    date("zcpdsj"), text("gzjb"), text("lxdh"),
          text("sjhm"), text("eml"),   text("gz"),   text("ygxs"),  text("yhkh"),   marker};
}

std::vector<Table> staffTables() {
  const Columns payItem{text("gzbh"), text("xz"), text("gzmc"), marker};
  const Columns payLine{text("gh"),  text("jsxm"), text("yhkh"), text("yf"),  text("xz"),
                        text("lsh"), text("gzbh"), text("gzmc"), money("je"), marker};
  return {
      {"js", Connection::Main, teacherColumns(), {}},
      {"gzmcb", Connection::Main, payItem, {}},
      {"gzb", Connection::Main, payLine, {"gh,yf", "jsxm,yf", "yf", "lsh", "gzmc"}},
      {"gzlsb", Connection::Main, payPivotColumns(), {"gh,yf"}},
      {"gzblsb", Connection::Main, payLine, {}},
      {"ls_gzb", Connection::Main, payLine, {"gh,yf", "yf"}},
  };
}

}  // namespace store
