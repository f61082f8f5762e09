// Sheets as .xlsx files.
#pragma once

#include "platform/sheets.h"

namespace sheets {

class XlsxSheets : public platform::Sheets {
 public:
  std::unique_ptr<platform::Sheet> create(const platform::SheetPlan& plan) override;
};

}  // namespace sheets
