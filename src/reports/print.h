// How every list is printed: its rows are copied into a table of their own, which a fixed report then prints whole.
#pragma once

#include <functional>

#include "kit/desk.h"
#include "kit/filter.h"
#include "reports/report.h"

namespace reports {

enum class Print {
  Students,  // of the console, as the next seven
  StudentForms,
  Payments,
  PaymentDetails,
  ArrearsDue,
  ArrearsProgress,
  Unpaid,
  Comparison,
  Unsubmitted,  // Formzctsf9
  Suspensions,  // Formxxfk
  Teachers,     // Formjs
};

// Values of a printed row that are not copied: sees the row that is read and the one that is written.
using Also = std::function<void(store::RecordSet& from, store::RecordSet& to)>;

struct PrintPlan {
  Print print;
  const char* report;  // its table takes the rows
  const char* from;    // the table that they come from; null: the report's table is printed as it stands
  const char* object;  // in the question; null: nothing is asked
  const char* none = "不存在需要打印的数据！  ";
  bool asksFirst = false;  // and looks, before the table is filled; without the blank that ends the others' question
  std::function<Also(kit::Desk&)> also{};
};

const std::vector<PrintPlan>& allPrints();

// The whole road: copies what the filter leaves (" where ...", or nothing for all), says that there is nothing or asks,
// and shows the report. A No leaves the print table filled.
void printList(kit::Desk& desk, Print what, const store::Sql& filter = {});
// The same as what a button does with the rows of its list.
std::function<void(kit::Desk&, const kit::Filter&)> printing(Print what);

bool mayPrint(kit::Desk& desk, const std::string& question, const std::string& title = "信息提示");

// A preview of the report over its table as it stands; nothing when the table has no rows.
void showReport(kit::Desk& desk, const Report& report, const std::string& period = "");

}  // namespace reports
