// Layouts one and two: the same receipt, with the positions of each as tables. All places are millimetres.
#include <algorithm>

#include "collection/receipt.h"
#include "collection/receipt_parts.h"

namespace collection {
namespace {

using platform::Drawing;
using platform::Face;
using platform::Page;

struct Value {
  TextPlace place;
  std::string PrintedReceipt::*text;
};

constexpr double bottomMargin = 8;

const Form formOne{{63, 10, "学杂费交费凭证（代收据）"},
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
                   {20, 42, 78, 95, 118, 185},
                   50,
                   27,
                   140};

const std::vector<Value> valuesOne{{{42, 21.5, valueSize, 91}, &PrintedReceipt::school},
                                   {{160, 21.5, valueSize, 25, Face::Hei}, &PrintedReceipt::fpbh},
                                   {{45, 28.5, valueSize, 33}, &PrintedReceipt::xh},
                                   {{97, 28.5, valueSize, 22}, &PrintedReceipt::xm},
                                   {{142, 28.5, valueSize, 43}, &PrintedReceipt::xq},
                                   {{45, 34.5, valueSize, 73}, &PrintedReceipt::bjmc},
                                   {{142, 34.5, valueSize, 43}, &PrintedReceipt::jffs}};

const Form formTwo = fiveRowsForm("  收   费   收   据", {{10, 22, "院校名称："},
                                                          {135, 22, "收据编号："},
                                                          {20, 28, "学  号  "},
                                                          {80, 28, "姓  名  "},
                                                          {120, 28, "学年学期  "},
                                                          {20, 34, "班  级  "},
                                                          {120, 34, "交费方式  "}});

const std::vector<Value> valuesTwo{{{32, 21.5, valueSize, 101}, &PrintedReceipt::school},
                                   {{157, 21.5, valueSize, 39, Face::Hei}, &PrintedReceipt::fpbh},
                                   {{45, 28.5, valueSize, 33}, &PrintedReceipt::xh},
                                   {{97, 28.5, valueSize, 22}, &PrintedReceipt::xm},
                                   {{142, 28.5, valueSize, 54}, &PrintedReceipt::xq},
                                   {{45, 34.5, valueSize, 73}, &PrintedReceipt::bjmc},
                                   {{142, 34.5, valueSize, 54}, &PrintedReceipt::jffs}};

void header(Page& page, const Form& form, const std::vector<Value>& values, const PrintedReceipt& receipt) {
  header(page, form);
  for (const Value& one : values) put(page, one.place, receipt.*one.text);
}

void footer(Page& page, const Form& form, const PrintedReceipt& receipt, double y) {
  foot(page, form, "打印时间：" + receipt.printed.plain(), receipt.cashier, y);
}

Drawing onPaper(const PrintedReceipt& receipt, double height) {
  return {.title = receiptTitle(receipt),
          .width = paperWidth,
          .height = height,
          .pages = {},
          .kind = platform::Kind::Receipt};
}

}  // namespace

Drawing layoutOne(const PrintedReceipt& receipt) {
  const Form& form = formOne;
  const std::size_t rows = receipt.rows.size();
  Page page;
  header(page, form, valuesOne, receipt);
  for (std::size_t row = 0; row < rows; ++row) {
    cell(page, 28, rowY(row), form.columns[1], std::to_string(row + 1));
    payment(page, rowY(row), receipt.rows[row].sfxm, receipt.rows[row].je);
    if (row < receipt.notes.receipt_remarks.size())
      cell(page, remarkX, rowY(row), form.right(), receipt.notes.receipt_remarks[row]);
  }
  const double bottom = ruleBelow(rows + 1);
  table(page, form, rows, bottom);
  total(page, form, receipt.total, rowY(rows));
  double y = bottom + 1;
  footer(page, form, receipt, y);
  // What has been typed for a line without a payment stands below the table.
  constexpr std::size_t typedRemarks = 5;
  for (std::size_t entry = rows; entry < typedRemarks; ++entry)
    cell(page, remarkX, y += pitch, form.right(), receipt.notes.receipt_remarks[entry]);
  Drawing drawing = onPaper(receipt, std::max(paperHeight, y + pitch + bottomMargin));
  drawing.pages.push_back(std::move(page));
  return drawing;
}

// The paper has five lines; an arrears receipt of more goes on to a further one, and the last one has the total.
Drawing layoutTwo(const PrintedReceipt& receipt) {
  const Form& form = formTwo;
  Drawing drawing = onPaper(receipt, paperHeight);
  for (std::size_t first = 0; first == 0 || first < receipt.rows.size(); first += fiveRows) {
    Page& page = drawing.pages.emplace_back();
    header(page, form, valuesTwo, receipt);
    for (std::size_t line = 0; line < fiveRows; ++line) {
      const double y = rowY(line);
      if (first + line < receipt.rows.size()) {
        const ReceiptRow& row = receipt.rows[first + line];
        payment(page, y, row.sfxm, row.je);
      }
      if (first > 0) continue;  // only the first five summaries and remarks are printed
      cell(page, summaryX, y, summaryTo, receipt.notes.receipt_summaries[line]);
      cell(page, remarkX, y, form.right(), receipt.notes.receipt_remarks[line]);
    }
    table(page, form, fiveRows, fiveRowsBottom);
    if (first + fiveRows >= receipt.rows.size()) total(page, form, receipt.total, fiveRowsTotalY);
    else totalLabel(page, form, fiveRowsTotalY, "（接下页）");
    footer(page, form, receipt, fiveRowsFootY);
  }
  return drawing;
}

}  // namespace collection
