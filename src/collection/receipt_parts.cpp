#include "collection/receipt_parts.h"

#include <utility>

namespace collection {
namespace {

using platform::Face;
using platform::Line;
using platform::Page;
using platform::Text;

constexpr double labelSize = 12, rowSize = 10, titleSize = 20;
constexpr double thin = 0.15, thick = 0.6, rule = 0.2;
constexpr double frameTop = 41, firstRow = 47;  // of the table; each row ends with a rule
constexpr double underRule = 0.8;               // from a rule to the text below it
constexpr double beforeRule = 0.7;              // from a text to the column rule to its right
constexpr double amountsEnd = 116.5;            // of all rows and of the total
constexpr double itemX = 45, itemTo = 78, unitX = 81, amountX = 97, amountTo = 118, totalX = 98;

void horizontal(Page& page, double from, double to, double y, double width = rule) {
  page.marks.push_back(Line{from, y, to, y, width});
}

void label(Page& page, const Label& one, double size) {
  page.marks.push_back(Text{one.x, one.y, one.text, Face::Kai, size});
}

void putAmount(Page& page, double x, double y, double to, base::Money amount) {
  page.marks.push_back(Text{x, y, base::paddedAmount(amount), Face::Kai, rowSize, to - x, false, platform::Align::Left,
                            false, amountsEnd});
}

}  // namespace

double ruleBelow(std::size_t rows) { return firstRow + pitch * static_cast<double>(rows); }
double rowY(std::size_t row) { return ruleBelow(row) + underRule; }

Form fiveRowsForm(const char* title, std::vector<Label> labels) {
  return {{66, 10, title},
          55,
          std::move(labels),
          {{12, 42, "    摘  要  "},
           {37.4, 42, "     交费项目名称   "},
           {79.7, 42, " 单位 "},
           {92.4, 42, "    金 额   "},
           {117.8, 42, "               备   注    "}},
          {10, summaryTo, itemTo, 95, amountTo, 196},
          43,
          12,
          150};
}

void header(Page& page, const Form& form) {
  constexpr double titleRuleTo = 148;
  label(page, form.title, titleSize);
  horizontal(page, form.titleRuleFrom, titleRuleTo, 18, thin);
  horizontal(page, form.titleRuleFrom, titleRuleTo, 19, thick);
  for (const Label& one : form.labels) label(page, one, labelSize);
  for (const Label& one : form.headings) label(page, one, labelSize);
}

void table(Page& page, const Form& form, std::size_t rows, double bottom) {
  horizontal(page, form.left(), form.right(), frameTop);
  for (std::size_t row = 0; row <= rows; ++row) horizontal(page, form.left(), form.right(), ruleBelow(row));
  horizontal(page, form.left(), form.right(), bottom);
  for (const double x : form.columns) {
    const bool frame = x == form.left() || x == form.right();
    page.marks.push_back(Line{x, frameTop, x, frame ? bottom : ruleBelow(rows), rule});
  }
}

void cell(Page& page, double x, double y, double to, const std::string& text) {
  put(page, TextPlace{x, y, rowSize, to - x - beforeRule}, text);
}

void payment(Page& page, double y, const std::string& item, base::Money amount) {
  cell(page, itemX, y, itemTo, item);
  page.marks.push_back(Text{unitX, y, "  元", Face::Kai, rowSize});
  putAmount(page, amountX, y, amountTo - beforeRule, amount);
}

void totalLabel(Page& page, const Form& form, double y, const char* text) {
  label(page, {form.totalLabelX, y, text}, rowSize);
}

void total(Page& page, const Form& form, base::Money amount, double y) {
  totalLabel(page, form, y, "实 收 金 额  ");
  putAmount(page, totalX, y, remarkX - 1, amount);
  cell(page, remarkX, y, form.right(), "大写：" + base::AmountInWords(amount < base::Money() ? -amount : amount));
}

void foot(Page& page, const Form& form, const std::string& text, const std::string& cashier, double y) {
  cell(page, form.footX, y, form.cashierX, text);
  cell(page, form.cashierX, y, form.right(), "收款人：" + cashier);
}

}  // namespace collection
