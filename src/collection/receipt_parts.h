// What the layouts on receipt paper have in common: header, table, total and foot, with the places of each as a table.
// All places are millimetres.
#pragma once

#include <string>
#include <vector>

#include "base/money.h"
#include "collection/receipt_marks.h"

namespace collection {

struct Label {
  double x, y;
  const char* text;
};

// What differs between the layouts, but for the values in the header.
struct Form {
  Label title;
  double titleRuleFrom;
  std::vector<Label> labels, headings;
  std::vector<double> columns;  // the vertical rules; the first and the last are the frame's
  double totalLabelX, footX, cashierX;

  double left() const { return columns.front(); }
  double right() const { return columns.back(); }
};

constexpr double valueSize = 11;  // points
constexpr double pitch = 5;       // of the table's rows
constexpr double remarkX = 121;
double ruleBelow(std::size_t rows);  // the rule below that many rows
double rowY(std::size_t row);        // of its text; the row behind the last one is the total's

// The form of five rows on half a sheet: layout two's, whatever its title and its header say.
constexpr std::size_t fiveRows = 5;
constexpr double fiveRowsTotalY = 73.5, fiveRowsBottom = 78, fiveRowsFootY = 79;
constexpr double summaryX = 12, summaryTo = 42;
Form fiveRowsForm(const char* title, std::vector<Label> labels);

void header(platform::Page& page, const Form& form);
// The frame and the rules: below the headings, below each row, and below the total.
void table(platform::Page& page, const Form& form, std::size_t rows, double bottom);
// A text in a column: it ends before x = to.
void cell(platform::Page& page, double x, double y, double to, const std::string& text);
void payment(platform::Page& page, double y, const std::string& item, base::Money amount);
void totalLabel(platform::Page& page, const Form& form, double y, const char* text);
void total(platform::Page& page, const Form& form, base::Money amount, double y);
void foot(platform::Page& page, const Form& form, const std::string& text, const std::string& cashier, double y);

}  // namespace collection
