// Sheets that keep what was written to them instead of a file.
#pragma once

#include <deque>

#include "platform/sheets.h"

namespace support {

struct RecordedSheet {
  platform::SheetPlan plan;
  std::vector<std::vector<platform::SheetCell>> rows;
  bool finished = false;
};

class RecordingSheets : public platform::Sheets {
 public:
  std::deque<RecordedSheet> kept;
  std::unique_ptr<platform::Sheet> create(const platform::SheetPlan& plan) override {
    return std::make_unique<Recording>(kept.emplace_back(RecordedSheet{plan, {}}));
  }

 private:
  class Recording : public platform::Sheet {
   public:
    explicit Recording(RecordedSheet& sheet) : sheet_(sheet) {}
    void add(const std::vector<platform::SheetCell>& row) override { sheet_.rows.push_back(row); }
    std::filesystem::path finish() override {
      sheet_.finished = true;
      return sheet_.plan.folder / (sheet_.plan.fileName + ".xlsx");
    }

   private:
    RecordedSheet& sheet_;
  };
};

}  // namespace support
