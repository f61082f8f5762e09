// How every list is printed: its rows are copied into a table of their own, which a fixed report then prints whole.
#pragma once

#include <functional>

#include "kit/desk.h"
#include "reports/report.h"

namespace reports {

// What a screen asks before it prints, and says when there is nothing to print.
struct Question {
  std::string text;
  std::string none = "不存在需要打印的数据！  ";
  std::string noneTitle = "信息提示";
};

// Values of a printed row that are not copied: sees the row that is read and the one that is written.
using Also = std::function<void(store::RecordSet& from, store::RecordSet& to)>;

// Empties the print table and copies the columns of each row of the source into it, in one unit. Gives back the count.
long long refill(kit::Desk& desk, const char* table, const store::Sql& source,
                 const std::vector<std::string_view>& columns, const Also& also = {});

// All columns of a table, for those whose print table is alike.
std::vector<std::string_view> columnsOf(std::string_view table);

bool mayPrint(kit::Desk& desk, const std::string& question, const std::string& title = "信息提示");

// A preview of the report over its table as it stands; nothing when the table has no rows.
void showReport(kit::Desk& desk, std::string_view name);

// The whole road: fill, say that there is nothing or ask, show. A No leaves the print table filled.
void printList(kit::Desk& desk, const std::function<long long()>& fill, std::string_view report,
               const Question& question);

}  // namespace reports
