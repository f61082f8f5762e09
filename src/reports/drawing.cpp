#include "reports/drawing.h"

#include <algorithm>
#include <map>
#include <numeric>

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
constexpr double titleTop = 12, periodTop = 17.8, furnitureTop = 23, tableTop = 30;
constexpr double titleSize = 18, textSize = 9.5, denseSize = 8.5;
constexpr double rowHeight = 6.2, aboveText = 1.3, besideText = 0.8, gap = 2;
constexpr double strong = 0.35, fine = 0.1;
constexpr double em = textSize * 25.4 / 72;
constexpr double half = 0.6;           // of an em: the room of a letter or a figure, bold ones too
constexpr std::size_t withTotals = 2;  // rows that the totals never stand without

struct Place {
  double x, width;
};

bool onTheRight(Shows shows) { return shows == Shows::Number || shows == Shows::Money; }
Align alignOf(Shows shows) {
  return onTheRight(shows) ? Align::Right : shows == Shows::Rank ? Align::Centre : Align::Left;
}

double emsOf(const std::string& text) {
  double ems = 0;
  for (const std::string& one : base::characters(text)) ems += one.size() == 1 ? half : 1;
  return ems;
}

// What stands on the right of its column keeps clear of the column behind it.
std::vector<Place> placesOf(const std::vector<Column>& columns, const std::vector<double>& widths) {
  std::vector<Place> places;
  double x = left;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const bool clear = onTheRight(columns[i].shows) && i + 1 < columns.size();
    places.push_back({x, widths[i] - (clear ? gap : 0)});
    x += widths[i];
  }
  return places;
}

std::vector<double> sharesOf(const std::vector<Column>& columns) {
  double all = 0;
  for (const Column& column : columns) all += column.width;
  std::vector<double> widths;
  for (const Column& column : columns) widths.push_back((right - left) * column.width / all);
  return widths;
}

double sumOf(const std::vector<double>& widths) { return std::accumulate(widths.begin(), widths.end(), 0.0); }

// Columns get what they need; where that is more than the page, those that need less than their share keep it whole,
// and the others divide what is left. Room to spare goes to all alike.
std::vector<double> divided(const std::vector<double>& needed, const std::vector<double>& shares) {
  const double page = right - left, spare = page - sumOf(needed);
  std::vector<double> widths = needed;
  if (spare >= 0) {
    for (double& width : widths) width += spare / static_cast<double>(widths.size());
    return widths;
  }
  std::vector<bool> whole(needed.size(), false);
  for (bool changed = true; changed;) {
    double room = page, open = 0;
    for (std::size_t i = 0; i < needed.size(); ++i) (whole[i] ? room : open) += whole[i] ? -needed[i] : shares[i];
    changed = false;
    for (std::size_t i = 0; i < needed.size(); ++i) {
      if (whole[i]) continue;
      widths[i] = room * shares[i] / open;
      if (needed[i] > widths[i]) continue;
      widths[i] = needed[i];
      changed = whole[i] = true;
    }
  }
  return widths;
}

std::string shown(const store::Value& value, Shows shows) {
  switch (shows) {
    case Shows::Text:
    case Shows::Rank:
    case Shows::Number: break;
    case Shows::Date: return kit::formatted(value, kit::Format::Date);
    case Shows::Money: return kit::formatted(value, kit::Format::Money);
  }
  return value.trimmed();
}

struct Look {
  Align align = Align::Left;
  double size = textSize;
  bool bold = false;
};

void put(Page& page, const Place& place, double y, const std::string& text, Look look = {}) {
  const double room = place.width - 2 * besideText;
  double x = place.x + besideText;
  if (look.align == Align::Centre) x = place.x + place.width / 2;
  if (look.align == Align::Right) x = place.x + place.width - besideText;
  if (!text.empty())
    page.marks.push_back(Text{x, y + aboveText, text, Face::Song, look.size, room, false, look.align, look.bold});
}

// A caption with a gap in which the number stands.
void putNumber(Page& page, double x, std::string_view caption, std::size_t number) {
  constexpr double numberRoom = 10;
  const std::string before(caption.substr(0, caption.find(' ')));
  const std::string behind(caption.substr(caption.rfind(' ') + 1));
  constexpr double letter = em + 2 * besideText;
  put(page, {x, letter}, furnitureTop, before);
  put(page, {x + em + besideText, numberRoom}, furnitureTop, std::to_string(number), {.align = Align::Centre});
  put(page, {x + em + numberRoom, letter}, furnitureTop, behind);
}

class Writer {
 public:
  Writer(const Report& what, const Printing& how) : report(what), printing(how) {
    drawing = {.title = what.title, .width = paperWidth, .height = paperHeight, .pages = {}};
  }

  void read(store::RecordSet& row);
  platform::Drawing finish();

 private:
  Page& page() { return drawing.pages.back(); }
  void rule(double y, double width, bool grey = false) { page().marks.push_back(Line{left, y, right, y, width, grey}); }
  void layOut();
  void startPage();
  void headings();
  void columnRules(double from, double to);
  void makeRoom(double height);
  void writeRow(const std::vector<std::string>& cells);
  void cardLine(const std::vector<std::string>& cells, std::size_t from, const std::vector<Column>& columns,
                const std::vector<Place>& places);
  bool labelled() const { return !report.sums.empty() && *report.sums[0].label != '\0'; }
  double footHeight() const;
  std::string total(const Column& column) const;
  void sums();
  void foot();
  void numberPages();

  const Report& report;
  const Printing& printing;
  std::vector<std::vector<std::string>> rows;
  std::vector<Place> first, second;
  double size = textSize;
  platform::Drawing drawing;
  double y = 0;
  std::map<std::string_view, base::Money> totals;
};

void Writer::read(store::RecordSet& row) {
  for (const Sum& sum : report.sums) totals[sum.column] += row.get(sum.column).money();
  std::vector<std::string>& cells = rows.emplace_back();
  for (const auto* line : {&report.columns, &report.secondLine})
    for (const Column& column : *line)
      cells.push_back(*column.column == '\0' ? "" : shown(row.get(column.column), column.shows));
}

// The rows tell how wide each column has to be. A table that is too wide is set in smaller letters before any of its
// texts is made to fit.
void Writer::layOut() {
  const std::vector<double> shares = sharesOf(report.columns);
  second = placesOf(report.secondLine, sharesOf(report.secondLine));
  if (report.card() || report.grid) return void(first = placesOf(report.columns, shares));
  std::vector<double> ems;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    const Column& column = report.columns[i];
    ems.push_back(std::max(emsOf(column.heading), emsOf(total(column))));
    for (const Sum& sum : report.sums)
      if (std::string_view(sum.column) == column.column) ems.back() = std::max(ems.back(), emsOf(sum.label));
    for (const auto& cells : rows) ems.back() = std::max(ems.back(), emsOf(cells[i]));
  }
  std::vector<double> needed;
  for (const double points : {textSize, denseSize}) {
    size = points;
    needed.clear();
    for (std::size_t i = 0; i < ems.size(); ++i)
      needed.push_back(ems[i] * size * 25.4 / 72 + 2 * besideText + (onTheRight(report.columns[i].shows) ? gap : 0));
    if (sumOf(needed) <= right - left) break;
  }
  first = placesOf(report.columns, divided(needed, shares));
}

void Writer::startPage() {
  const bool firstPage = drawing.pages.empty();
  drawing.pages.emplace_back();
  const Place whole{left, right - left};
  if (firstPage || report.furniture != Furniture::TitleOnce)
    put(page(), whole, titleTop - aboveText, report.title, {Align::Centre, titleSize});
  put(page(), whole, periodTop, printing.period, {.align = Align::Centre});
  const bool school = report.furniture != Furniture::Library;
  if (school) put(page(), {left, 86}, furnitureTop, "学校名称：" + printing.school);
  put(page(), {school ? left + 88 : left, 56}, furnitureTop, "打印时间：" + printing.time.iso());
  y = tableTop;
  rule(y, strong);
  if (!report.card()) headings();
}

void Writer::headings() {
  for (std::size_t i = 0; i < first.size(); ++i)
    put(page(), first[i], y, report.columns[i].heading, {alignOf(report.columns[i].shows), size, true});
  columnRules(y, y + rowHeight);
  rule(y += rowHeight, strong);
}

void Writer::columnRules(double from, double to) {
  if (!report.grid) return;
  for (const Place& place : first) page().marks.push_back(Line{place.x, from, place.x, to, fine});
  page().marks.push_back(Line{right, from, right, to, fine});
}

void Writer::makeRoom(double height) {
  if (y + height > bottom) startPage();
}

void Writer::writeRow(const std::vector<std::string>& cells) {
  if (report.card()) {
    cardLine(cells, 0, report.columns, first);
    cardLine(cells, first.size(), report.secondLine, second);
  } else {
    for (std::size_t i = 0; i < first.size(); ++i)
      put(page(), first[i], y, cells[i], {alignOf(report.columns[i].shows), size});
    columnRules(y, y + rowHeight);
    y += rowHeight;
  }
  rule(y, fine, true);
}

void Writer::cardLine(const std::vector<std::string>& cells, std::size_t from, const std::vector<Column>& columns,
                      const std::vector<Place>& places) {
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::size_t letters = base::length(columns[i].heading);
    const double label = letters == 0 ? 0 : em * (static_cast<double>(letters) + 1);
    put(page(), {places[i].x, label + 2 * besideText}, y, columns[i].heading);
    put(page(), {places[i].x + label, places[i].width - label}, y, cells[from + i]);
  }
  y += rowHeight;
}

double Writer::footHeight() const {
  const double sumRows = report.sums.empty() ? 0 : labelled() ? 2 : 1;
  return (sumRows + 1) * rowHeight + gap;
}

std::string Writer::total(const Column& column) const {
  const auto found = totals.find(column.column);
  if (found == totals.end()) return "";
  return column.shows == Shows::Money ? found->second.fixed2() : found->second.plain();
}

void Writer::sums() {
  if (report.sums.empty()) return;
  const Look look{Align::Right, size, true};
  if (labelled()) {
    for (const Sum& sum : report.sums) {
      const auto column = std::ranges::find(report.columns, std::string_view(sum.column), &Column::column);
      put(page(), first[static_cast<std::size_t>(column - report.columns.begin())], y, sum.label, look);
    }
    y += rowHeight;
  }
  bool named = labelled();
  for (std::size_t i = 0; i < first.size(); ++i) {
    const std::string text = total(report.columns[i]);
    if (text.empty()) continue;
    if (!named) put(page(), {left, first[i].x - left}, y, report.total, look);
    named = true;
    put(page(), first[i], y, text, look);
    page().marks.push_back(Line{first[i].x, y + rowHeight, first[i].x + first[i].width, y + rowHeight, strong});
  }
  y += rowHeight;
}

void Writer::foot() {
  y += gap;
  if (report.furniture == Furniture::Library)
    return put(page(), {left, right - left}, y, printing.school + "图书馆", {.align = Align::Right});
  put(page(), {left, 50}, y, "共 " + std::to_string(rows.size()) + " 条记录");
  double x = left + 60;
  for (const char* who : {"制表人：", "复核：", "出纳："}) {
    put(page(), {x, 40}, y, who);
    x += 42;
  }
  numberPages();
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
  layOut();
  startPage();
  const double height = report.card() ? 2 * rowHeight : rowHeight;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t rest = rows.size() - i;
    const bool last = rest <= withTotals;
    makeRoom(last ? height * static_cast<double>(rest) + footHeight() : height);
    writeRow(rows[i]);
  }
  rule(y, strong);
  sums();
  foot();
  return std::move(drawing);
}

}  // namespace

platform::Drawing draw(const Report& report, store::RecordSet& rows, const Printing& printing) {
  Writer writer(report, printing);
  store::forEach(rows, [&](store::RecordSet& row) { writer.read(row); });
  return writer.finish();
}

}  // namespace reports
