// How every list becomes a sheet in the person's spreadsheet program: a question, one statement, a row a record.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "kit/desk.h"
#include "kit/filter.h"

namespace reports {

struct Heading {
  std::string_view field;
  std::string text;
};

enum class List {
  Payments,  // of the console, as the next four
  Students,
  Arrears,
  Unpaid,
  Comparison,
  Grades,            // Formcj2
  GraduatePayments,  // Formbysgl1
  GraduateStudents,  // Formbysgl1
  Suspensions,       // Formxxfk
  Teachers,          // Formjs
  TeacherHistory,    // Formls_jfjl1
  Payroll,           // Formjsgz2
  PayrollHistory,    // Formls_gzb1
  LibraryLedger,     // Formtsgl12
  LibraryStock,      // Formtsgl12
  AssetLedger,       // Formwpgl10
  AssetStock,        // Formwpgl10
  AssetDesk,         // Formwpgl1
  Boarders,          // Formzsgl1
};

// What a list asks, holds and is called. Headings belong to the list: one field is headed differently in different
// lists.
struct Export {
  List list;
  const char* object;              // in the question
  store::Sql sql;                  // the columns in their order; a screen's filter comes behind it
  std::vector<Heading> headings;   // a field that is missing here gets an empty heading
  std::set<std::size_t> dates{};   // columns, counted from 0
  const char* all;                 // the sheet's title
  const char* byCondition = all;   // the same, under a filter
  const char* title = "信息提示";  // of the question
  bool payItems = false;           // a0 to a28 are headed by the pay items
  bool emptyListSaysSo = false;    // in words of its own, when there is nothing to export
};

const std::vector<Export>& allExports();
const Export& exportOf(List list);

// The office's limit of one sheet: a count of its rows is a signed number of 16 bits.
constexpr long long mostRows = 32767;

// Asks, then exports what the filter leaves (" where ...", or nothing for all) and tells where the sheet is.
void exportList(kit::Desk& desk, List list, const store::Sql& filter = {});
// The same as what a button does with the rows of its list.
std::function<void(kit::Desk&, const kit::Filter&)> exporting(List list);

// The rows of a statement as a sheet; says so when there are none, or more than a sheet takes.
void exportToSheet(kit::Desk& desk, const std::string& sheetTitle, const store::Sql& sql,
                   const std::vector<Heading>& headings, const std::set<std::size_t>& dates);

}  // namespace reports
