#include <algorithm>
#include <map>
#include <set>

#include "reports/drawing.h"
#include "support/test_desk.h"

namespace reports {
namespace {

using platform::Align;
using support::TestDesk;

std::vector<platform::Text> textsOf(const platform::Page& page) {
  std::vector<platform::Text> texts;
  for (const platform::Mark& mark : page.marks)
    if (const auto* text = std::get_if<platform::Text>(&mark)) texts.push_back(*text);
  return texts;
}

bool shows(const platform::Page& page, std::string_view wanted) {
  return std::ranges::any_of(textsOf(page), [&](const auto& one) { return one.text == wanted; });
}

platform::Drawing drawn(TestDesk& desk, const Report& report) {
  store::RecordSet rows(desk.store, store::Sql::table(report.table));
  return draw(report, rows, {"澜岳学校", {{2026, 9, 7}, 8, 30, 5}});
}

// A row in which every column holds something long: texts, dates, and amounts that grow.
void addRow(TestDesk& desk, const Report& report, int number) {
  std::vector<std::pair<std::string_view, store::Value>> values;
  for (const store::Column& column : store::findTable(report.table)->columns) {
    switch (column.type) {
      case store::Type::Text:
        values.emplace_back(column.name, "一段比它的位置更长的文字" + std::to_string(number));
        break;
      case store::Type::Date: values.emplace_back(column.name, base::Date{2026, 9, 7}); break;
      case store::Type::Money: values.emplace_back(column.name, base::Money::fen(10 * number)); break;
      default: values.emplace_back(column.name, number);
    }
  }
  desk.add(report.table, values);
}

// The right and the left end of the room that a text may take.
std::pair<double, double> roomOf(const platform::Text& text) {
  const double from = text.align == Align::Left ? text.x : text.x - text.fit / (text.align == Align::Right ? 1 : 2);
  return {from, from + text.fit};
}

void expectNoTextInAnother(const platform::Page& page, const char* name) {
  std::map<double, std::vector<std::pair<double, double>>> lines;
  for (const platform::Text& text : textsOf(page)) {
    EXPECT_GT(text.fit, 0) << name << ": " << text.text;
    EXPECT_TRUE(text.y > 0 && text.y < 290) << name << ": " << text.text;
    lines[text.y].push_back(roomOf(text));
  }
  for (auto& [y, rooms] : lines) {
    std::ranges::sort(rooms);
    EXPECT_GE(rooms.front().first, 12) << name;
    EXPECT_LE(rooms.back().second, 198) << name;
    for (std::size_t i = 1; i < rooms.size(); ++i)
      EXPECT_LE(rooms[i - 1].second, rooms[i].first + 1e-6) << name << " at " << y;
  }
}

TEST(Reports, EveryLayoutHoldsItsTextsApartOnEveryPage) {
  std::set<std::string> names;
  for (const Report& report : allReports()) {
    EXPECT_TRUE(names.insert(report.name).second) << report.name;
    TestDesk desk;
    for (int row = 1; row <= 45; ++row) addRow(desk, report, row);
    const platform::Drawing drawing = drawn(desk, report);
    EXPECT_EQ(drawing.pages.size(), report.card() ? 3u : 2u) << report.name;
    for (const platform::Page& page : drawing.pages) expectNoTextInAnother(page, report.name);
    for (const auto* line : {&report.columns, &report.secondLine})
      for (const Column& column : *line)
        EXPECT_TRUE(*column.heading == '\0' || shows(drawing.pages.back(), column.heading))
            << report.name << column.heading;
  }
  EXPECT_EQ(names.size(), 19u);
}

TEST(Reports, PagesAndSumsFollowTheRows) {
  const Report& report = reportNamed("bbdy_qf2");
  struct Case {
    int rows;
    std::size_t pages;
    const char* sum;
  };
  for (const Case& one : {Case{0, 1, "0.00"}, Case{1, 1, "0.10"}, Case{45, 2, "103.50"}, Case{1000, 26, "50050.00"}}) {
    TestDesk desk;
    {
      store::Unit unit(desk.store);
      for (int row = 1; row <= one.rows; ++row) addRow(desk, report, row);
      unit.finish();
    }
    const platform::Drawing drawing = drawn(desk, report);
    ASSERT_EQ(drawing.pages.size(), one.pages) << one.rows;
    long long details = 0;
    for (std::size_t page = 0; page < one.pages; ++page) {
      EXPECT_TRUE(shows(drawing.pages[page], "欠费收回进度报表") && shows(drawing.pages[page], "学校名称：澜岳学校") &&
                  shows(drawing.pages[page], "打印时间：2026-09-07 08:30:05"));
      EXPECT_TRUE(shows(drawing.pages[page], std::to_string(page + 1)) &&
                  shows(drawing.pages[page], std::to_string(one.pages)));
      EXPECT_EQ(shows(drawing.pages[page], "合计"), page + 1 == one.pages);
      details += std::ranges::count(textsOf(drawing.pages[page]), "2026-9-7", &platform::Text::text) / 2;
    }
    EXPECT_EQ(details, one.rows);
    const auto last = textsOf(drawing.pages.back());
    const double foot = std::ranges::find(last, "合计", &platform::Text::text)->y;
    for (const platform::Text& text : last)
      if (text.y == foot && text.text != "合计") {
        EXPECT_EQ(text.text, one.sum);
        EXPECT_EQ(text.align, Align::Right);
      }
  }
}

TEST(Reports, TotalsKeepTwoRowsAndColumnsKeepWhatTheyNeed) {
  const Report& report = reportNamed("bbdy_qf2");
  for (const int count : {38, 39, 40, 77, 78}) {
    TestDesk desk;
    for (int row = 1; row <= count; ++row) addRow(desk, report, row);
    const auto last = textsOf(drawn(desk, report).pages.back());
    EXPECT_GE(std::ranges::count(last, "2026-9-7", &platform::Text::text), 4) << count;
  }
  TestDesk desk;
  const std::string name = "王小明", term = "2026学年下学期", made(60, 'x');
  for (const std::string& item : {std::string("学费"), made})
    desk.add("dy_jfjl", {{"lsh", "202609070001"}, {"xm", name}, {"xq", term}, {"sfxm", item}});
  for (const platform::Text& text : textsOf(drawn(desk, reportNamed("bbdy_jfjl1")).pages[0])) {
    const double needed = static_cast<double>(text.text.size()) / 3 * text.size * 25.4 / 72;
    EXPECT_TRUE((text.text != name && text.text != term) || text.fit > needed * 0.95) << text.text;
  }
}

TEST(Reports, FurnitureDiffers) {
  TestDesk desk;
  for (const char* name : {"bbdy_kh", "bbdy_tskc2", "bbdy_qf4"})
    for (int row = 1; row <= 45; ++row) addRow(desk, reportNamed(name), row);

  const auto income = drawn(desk, reportNamed("bbdy_kh"));
  EXPECT_TRUE(shows(income.pages[0], "学校经营损益报表") && shows(income.pages[1], "合   计"));
  EXPECT_FALSE(shows(income.pages[1], "学校经营损益报表"));
  EXPECT_TRUE(shows(income.pages[1], "本期金额"));

  const auto loans = drawn(desk, reportNamed("bbdy_tskc2"));
  EXPECT_TRUE(shows(loans.pages[1], "澜岳学校图书馆") && shows(loans.pages[1], "103.50"));
  EXPECT_FALSE(shows(loans.pages[0], "学校名称：澜岳学校") || shows(loans.pages[0], "页"));

  const auto compared = drawn(desk, reportNamed("bbdy_qf4"));
  EXPECT_TRUE(shows(compared.pages[1], "共 45 条记录") && shows(compared.pages[1], "应交与实交差额："));
}

}  // namespace
}  // namespace reports
