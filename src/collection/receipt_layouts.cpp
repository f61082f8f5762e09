// Layouts one and two: the same receipt, with the positions of each as tables. All places are millimetres.
#include <algorithm>

#include "collection/receipt.h"
#include "collection/receipt_marks.h"

namespace collection {
namespace {

using platform::Drawing;
using platform::Face;
using platform::Line;
using platform::Page;
using platform::Text;

struct Label {
  double x, y;
  const char* text;
};

struct Value {
  TextPlace place;
  std::string PrintedReceipt::*text;
};

constexpr double labelSize = 12, valueSize = 11, rowSize = 10, titleSize = 20;
constexpr double thin = 0.15, thick = 0.6, rule = 0.2;
constexpr double frameTop = 41, firstRow = 47, pitch = 5;  // of the table; each row ends with a rule
constexpr double underRule = 0.8;                          // from a rule to the text below it
constexpr double beforeRule = 0.7;                         // from a text to the column rule to its right
constexpr double bottomMargin = 8;
constexpr double itemX = 45, unitX = 81, amountX = 97, totalX = 98, remarkX = 121;

// What differs between the two.
struct Form {
  Label title;
  double titleRuleFrom;
  std::vector<Label> labels, headings;
  std::vector<Value> values;
  std::vector<double> columns;  // the vertical rules; the first and the last are the frame's
  double totalLabelX, printedX, cashierX;

  double left() const { return columns.front(); }
  double right() const { return columns.back(); }
};

const Form formOne{
    {63, 10, "学杂费交费凭证（代收据）"},
    60,
    {{20, 22, "院校名称："},
     {135, 22, "收据编号："},
     {25, 28, "学  号  "},
     {80, 28, "姓  名  "},
     {120, 28, "学年学期  "},
     {25, 34, "班  级  "},
     {120, 34, "交费方式  "}},
    {{25, 42, "序  号  "},
     {42, 42, "  交费项目名称   "},
     {78, 42, "  单位 "},
     {92.8, 42, "    金 额   "},
     {118.2, 42, "            备  注    "}},
    {{{42, 21.5, valueSize, 91}, &PrintedReceipt::school},
     {{160, 21.5, valueSize, 25, Face::Hei}, &PrintedReceipt::fpbh},
     {{45, 28.5, valueSize, 33}, &PrintedReceipt::xh},
     {{97, 28.5, valueSize, 22}, &PrintedReceipt::xm},
     {{142, 28.5, valueSize, 43}, &PrintedReceipt::xq},
     {{45, 34.5, valueSize, 73}, &PrintedReceipt::bjmc},
     {{142, 34.5, valueSize, 43}, &PrintedReceipt::jffs}},
    {20, 42, 78, 95, 118, 185},
    50,
    27,
    140};

const Form formTwo{
    {66, 10, "  收   费   收   据"},
    55,
    {{10, 22, "院校名称："},
     {135, 22, "收据编号："},
     {20, 28, "学  号  "},
     {80, 28, "姓  名  "},
     {120, 28, "学年学期  "},
     {20, 34, "班  级  "},
     {120, 34, "交费方式  "}},
    {{12, 42, "    摘  要  "},
     {37.4, 42, "     交费项目名称   "},
     {79.7, 42, " 单位 "},
     {92.4, 42, "    金 额   "},
     {117.8, 42, "               备   注    "}},
    {{{32, 21.5, valueSize, 101}, &PrintedReceipt::school},
     {{157, 21.5, valueSize, 39, Face::Hei}, &PrintedReceipt::fpbh},
     {{45, 28.5, valueSize, 33}, &PrintedReceipt::xh},
     {{97, 28.5, valueSize, 22}, &PrintedReceipt::xm},
     {{142, 28.5, valueSize, 54}, &PrintedReceipt::xq},
     {{45, 34.5, valueSize, 73}, &PrintedReceipt::bjmc},
     {{142, 34.5, valueSize, 54}, &PrintedReceipt::jffs}},
    {10, 42, 78, 95, 118, 196},
    43,
    12,
    150};

void horizontal(Page& page, double from, double to, double y, double width = rule) {
  page.marks.push_back(Line{from, y, to, y, width});
}

void label(Page& page, const Label& one, double size) {
  page.marks.push_back(Text{one.x, one.y, one.text, Face::Kai, size});
}

void header(Page& page, const Form& form, const PrintedReceipt& receipt) {
  constexpr double titleRuleTo = 148;
  label(page, form.title, titleSize);
  horizontal(page, form.titleRuleFrom, titleRuleTo, 18, thin);
  horizontal(page, form.titleRuleFrom, titleRuleTo, 19, thick);
  for (const Label& one : form.labels) label(page, one, labelSize);
  for (const Value& one : form.values) put(page, one.place, receipt.*one.text);
  for (const Label& one : form.headings) label(page, one, labelSize);
}

// The frame and the rules: below the headings, below each row, and below the total.
void table(Page& page, const Form& form, std::size_t rows, double bottom) {
  horizontal(page, form.left(), form.right(), frameTop);
  for (std::size_t row = 0; row <= rows; ++row)
    horizontal(page, form.left(), form.right(), firstRow + pitch * static_cast<double>(row));
  horizontal(page, form.left(), form.right(), bottom);
  const double lastRule = firstRow + pitch * static_cast<double>(rows);
  for (const double x : form.columns) {
    const bool frame = x == form.left() || x == form.right();
    page.marks.push_back(Line{x, frameTop, x, frame ? bottom : lastRule, rule});
  }
}

double rowY(std::size_t row) { return firstRow + pitch * static_cast<double>(row) + underRule; }

void cell(Page& page, double x, double y, double to, const std::string& text) {
  put(page, TextPlace{x, y, rowSize, to - x - beforeRule}, text);
}

void payment(Page& page, double y, const ReceiptRow& row) {
  cell(page, itemX, y, 78, row.sfxm);
  page.marks.push_back(Text{unitX, y, "  元", Face::Kai, rowSize});
  page.marks.push_back(Text{amountX, y, base::paddedAmount(row.je), Face::Kai, rowSize, 118 - amountX - beforeRule});
}

void total(Page& page, const Form& form, const PrintedReceipt& receipt, double y) {
  const base::Money amount = receipt.total;
  label(page, {form.totalLabelX, y, "实 收 金 额  "}, rowSize);
  page.marks.push_back(Text{totalX, y, base::paddedAmount(amount), Face::Kai, rowSize, remarkX - totalX - 1});
  cell(page, remarkX, y, form.right(), "大写：" + base::AmountInWords(amount < base::Money() ? -amount : amount));
}

void footer(Page& page, const Form& form, const PrintedReceipt& receipt, double y) {
  cell(page, form.printedX, y, form.cashierX, "打印时间：" + receipt.printed.plain());
  cell(page, form.cashierX, y, form.right(), "收款人：" + receipt.cashier);
}

Drawing onPaper(const PrintedReceipt& receipt, double height) {
  return {.title = receiptTitle(receipt), .width = paperWidth, .height = height, .pages = {}};
}

}  // namespace

Drawing layoutOne(const PrintedReceipt& receipt) {
  const Form& form = formOne;
  const std::size_t rows = receipt.rows.size();
  Page page;
  header(page, form, receipt);
  for (std::size_t row = 0; row < rows; ++row) {
    cell(page, 28, rowY(row), form.columns[1], std::to_string(row + 1));
    payment(page, rowY(row), receipt.rows[row]);
    if (row < receipt.remarks.size()) cell(page, remarkX, rowY(row), form.right(), receipt.remarks[row]);
  }
  const double bottom = firstRow + pitch * static_cast<double>(rows + 1);
  table(page, form, rows, bottom);
  total(page, form, receipt, rowY(rows));
  double y = bottom + 1;
  footer(page, form, receipt, y);
  // What has been typed for a line without a payment stands below the table.
  constexpr std::size_t typedRemarks = 5;
  for (std::size_t entry = rows; entry < typedRemarks; ++entry)
    cell(page, remarkX, y += pitch, form.right(), receipt.remarks[entry]);
  Drawing drawing = onPaper(receipt, std::max(paperHeight, y + pitch + bottomMargin));
  drawing.pages.push_back(std::move(page));
  return drawing;
}

// The paper has five lines; an arrears receipt of more goes on to a further one, and the last one has the total.
Drawing layoutTwo(const PrintedReceipt& receipt) {
  constexpr std::size_t lines = 5;
  constexpr double totalY = 73.5, bottom = 78, footerY = 79;
  const Form& form = formTwo;
  Drawing drawing = onPaper(receipt, paperHeight);
  for (std::size_t first = 0; first == 0 || first < receipt.rows.size(); first += lines) {
    Page& page = drawing.pages.emplace_back();
    header(page, form, receipt);
    for (std::size_t line = 0; line < lines; ++line) {
      const double y = rowY(line);
      if (first + line < receipt.rows.size()) payment(page, y, receipt.rows[first + line]);
      if (first > 0) continue;  // only the first five summaries and remarks are printed
      cell(page, 12, y, form.columns[1], receipt.summaries[line]);
      cell(page, remarkX, y, form.right(), receipt.remarks[line]);
    }
    table(page, form, lines, bottom);
    if (first + lines >= receipt.rows.size())
      total(page, form, receipt, totalY);
    else
      label(page, {form.totalLabelX, totalY, "（接下页）"}, rowSize);
    footer(page, form, receipt, footerY);
  }
  return drawing;
}

}  // namespace collection
