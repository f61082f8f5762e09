#include "reports/drawing.h"

#include <map>

#include "base/text.h"
#include "kit/list.h"

namespace reports {
namespace {

using platform::Align;
using platform::Face;
using platform::Line;
using platform::Page;
using platform::Text;

// All places are millimetres; sizes of letters are points.
constexpr double paperWidth = 210, paperHeight = 297;
constexpr double left = 12, right = paperWidth - left, bottom = paperHeight - 14;
constexpr double titleTop = 12, furnitureTop = 23, tableTop = 30;
constexpr double titleSize = 18, textSize = 9.5;
constexpr double rowHeight = 6.2, aboveText = 1.3, besideText = 0.8;
constexpr double em = textSize * 25.4 / 72;

struct Place {
  double x, width;
};

bool onTheRight(Shows shows) { return shows == Shows::Number || shows == Shows::Money; }

// What stands on the right of its column keeps clear of the column behind it.
std::vector<Place> placesOf(const std::vector<Column>& columns) {
  constexpr double gap = 2;
  double all = 0;
  for (const Column& column : columns) all += column.width;
  std::vector<Place> places;
  double x = left;
  for (const Column& column : columns) {
    const double width = (right - left) * column.width / all;
    const bool clear = onTheRight(column.shows) && &column != &columns.back();
    places.push_back({x, width - (clear ? gap : 0)});
    x += width;
  }
  return places;
}

std::string shown(const store::Value& value, Shows shows) {
  switch (shows) {
    case Shows::Text:
    case Shows::Number: break;
    case Shows::Date: return kit::formatted(value, kit::Format::Date);
    case Shows::Money: return kit::formatted(value, kit::Format::Money);
  }
  return value.trimmed();
}

void put(Page& page, const Place& place, double y, const std::string& text, Align align = Align::Left,
         double size = textSize) {
  const double room = place.width - 2 * besideText;
  double x = place.x + besideText;
  if (align == Align::Centre) x = place.x + place.width / 2;
  if (align == Align::Right) x = place.x + place.width - besideText;
  if (!text.empty()) page.marks.push_back(Text{x, y + aboveText, text, Face::Song, size, room, false, align});
}

// A caption with a gap in which the number stands.
void putNumber(Page& page, double x, std::string_view caption, std::size_t number) {
  constexpr double gap = 10;
  const std::string before(caption.substr(0, caption.find(' ')));
  const std::string behind(caption.substr(caption.rfind(' ') + 1));
  constexpr double letter = em + 2 * besideText;
  put(page, {x, letter}, furnitureTop, before);
  put(page, {x + em + besideText, gap}, furnitureTop, std::to_string(number), Align::Centre);
  put(page, {x + em + gap, letter}, furnitureTop, behind);
}

class Writer {
 public:
  Writer(const Report& what, const Printing& how)
      : report(what), printing(how), first(placesOf(what.columns)), second(placesOf(what.secondLine)) {
    drawing = {.title = what.title, .width = paperWidth, .height = paperHeight, .pages = {}};
    startPage();
  }

  void row(store::RecordSet& row);
  platform::Drawing finish();

 private:
  Page& page() { return drawing.pages.back(); }
  void rule(double y) { page().marks.push_back(Line{left, y, right, y}); }
  void startPage();
  void headings();
  void columnRules(double from, double to);
  void makeRoom(double height);
  void cardLine(store::RecordSet& row, const std::vector<Column>& columns, const std::vector<Place>& places);
  void sums();
  void labelledSums();
  void numberPages();

  const Report& report;
  const Printing& printing;
  const std::vector<Place> first, second;
  platform::Drawing drawing;
  double y = 0;
  std::map<std::string_view, base::Money> totals;
};

void Writer::startPage() {
  const bool firstPage = drawing.pages.empty();
  drawing.pages.emplace_back();
  const Place whole{left, right - left};
  if (firstPage || report.furniture != Furniture::TitleOnce)
    put(page(), whole, titleTop - aboveText, report.title, Align::Centre, titleSize);
  const bool school = report.furniture != Furniture::Library;
  if (school) put(page(), {left, 86}, furnitureTop, "学校名称：" + printing.school);
  put(page(), {school ? left + 88 : left, 56}, furnitureTop, "打印时间：" + printing.time.plain());
  y = tableTop;
  rule(y);
  if (!report.card()) headings();
}

void Writer::headings() {
  for (std::size_t i = 0; i < first.size(); ++i)
    put(page(), first[i], y, report.columns[i].heading,
        onTheRight(report.columns[i].shows) ? Align::Right : Align::Left);
  columnRules(y, y + rowHeight);
  rule(y += rowHeight);
}

void Writer::columnRules(double from, double to) {
  if (!report.grid) return;
  for (const Place& place : first) page().marks.push_back(Line{place.x, from, place.x, to});
  page().marks.push_back(Line{right, from, right, to});
}

void Writer::makeRoom(double height) {
  if (y + height > bottom) startPage();
}

void Writer::row(store::RecordSet& row) {
  makeRoom(report.card() ? 2 * rowHeight : rowHeight);
  for (const Sum& sum : report.sums) totals[sum.column] += row.get(sum.column).money();
  if (report.card()) {
    cardLine(row, report.columns, first);
    cardLine(row, report.secondLine, second);
    return rule(y);
  }
  for (std::size_t i = 0; i < first.size(); ++i) {
    const Column& column = report.columns[i];
    if (*column.column == '\0') continue;
    put(page(), first[i], y, shown(row.get(column.column), column.shows),
        onTheRight(column.shows) ? Align::Right : Align::Left);
  }
  columnRules(y, y + rowHeight);
  rule(y += rowHeight);
}

void Writer::cardLine(store::RecordSet& row, const std::vector<Column>& columns, const std::vector<Place>& places) {
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::size_t letters = base::length(columns[i].heading);
    const double label = letters == 0 ? 0 : em * (static_cast<double>(letters) + 1);
    put(page(), {places[i].x, label + 2 * besideText}, y, columns[i].heading);
    put(page(), {places[i].x + label, places[i].width - label}, y, shown(row.get(columns[i].column), columns[i].shows));
  }
  y += rowHeight;
}

void Writer::sums() {
  if (report.sums.empty()) return;
  makeRoom(rowHeight);
  if (*report.sums[0].label != '\0') return labelledSums();
  bool labelled = false;
  for (std::size_t i = 0; i < first.size(); ++i) {
    const auto total = totals.find(report.columns[i].column);
    if (total == totals.end()) continue;
    if (!labelled) put(page(), {left, first[i].x - left}, y, report.total);
    labelled = true;
    put(page(), first[i], y, report.columns[i].shows == Shows::Money ? total->second.fixed2() : total->second.plain(),
        Align::Right);
  }
  y += rowHeight;
}

void Writer::labelledSums() {
  const double width = (right - left) / static_cast<double>(report.sums.size());
  double x = left;
  for (const Sum& sum : report.sums) {
    put(page(), {x, width}, y, sum.label + totals[sum.column].fixed2());
    x += width;
  }
  y += rowHeight;
}

void Writer::numberPages() {
  const std::size_t count = drawing.pages.size();
  for (std::size_t i = 0; i < count; ++i) {
    putNumber(drawing.pages[i], right - 40, "第           页", i + 1);
    putNumber(drawing.pages[i], right - 20, "总           页", count);
  }
}

platform::Drawing Writer::finish() {
  for (const Sum& sum : report.sums) totals[sum.column];  // without rows the sums are zero
  sums();
  if (report.furniture == Furniture::Library) {
    makeRoom(rowHeight);
    put(page(), {left, right - left}, y, printing.school + "图书馆", Align::Right);
  } else {
    numberPages();
  }
  return std::move(drawing);
}

}  // namespace

platform::Drawing draw(const Report& report, store::RecordSet& rows, const Printing& printing) {
  Writer writer(report, printing);
  store::forEach(rows, [&](store::RecordSet& row) { writer.row(row); });
  return writer.finish();
}

}  // namespace reports
