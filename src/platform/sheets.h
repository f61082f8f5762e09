// Spreadsheets: workbook files of one sheet, for the person's own spreadsheet program.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "base/date.h"
#include "base/money.h"

namespace platform {

// What a cell holds: nothing, a text (digits stay text, however many), a number, an amount in yuan, a day.
using SheetCell = std::variant<std::monostate, std::string, double, base::Money, base::Date>;

enum class SheetKind { Text, Number, Amount, Day };  // of a column, also where its cells are empty

struct SheetPlan {
  std::filesystem::path folder;       // made when it is missing
  std::string fileName;               // without its ending; numbered when there is such a file already
  std::string title;                  // of the sheet
  std::vector<std::string> headings;  // one a column
  std::vector<SheetKind> kinds;       // the same
  std::string creator;                // the person whose work it is
};

// A sheet that is being written. One that is left without finish() leaves nothing behind.
class Sheet {
 public:
  virtual ~Sheet() = default;
  virtual void add(const std::vector<SheetCell>& row) = 0;  // behind the rows there are; a cell a heading
  virtual std::filesystem::path finish() = 0;               // where the whole file stands now
};

// Whatever cannot be written is a PlatformError.
class Sheets {
 public:
  virtual ~Sheets() = default;
  virtual std::unique_ptr<Sheet> create(const SheetPlan& plan) = 0;
};

}  // namespace platform
