// Sheets that keep what was written to them instead of a file.
#pragma once

#include <deque>

#include "platform/sheets.h"
#include "support/platform_faults.h"

namespace support {

struct RecordedSheet {
  platform::SheetPlan plan;
  std::vector<std::vector<platform::SheetCell>> rows;
  bool finished = false;
};

class RecordingSheets : public platform::Sheets {
 public:
  explicit RecordingSheets(PlatformFaults& faults) : faults_(faults) {}
  std::deque<RecordedSheet> kept;
  std::unique_ptr<platform::Sheet> create(const platform::SheetPlan& plan) override {
    faults_.pass();
    return std::make_unique<Recording>(kept.emplace_back(RecordedSheet{plan, {}}), faults_);
  }

 private:
  class Recording : public platform::Sheet {
   public:
    Recording(RecordedSheet& sheet, PlatformFaults& faults) : sheet_(sheet), faults_(faults) {}
    void add(const std::vector<platform::SheetCell>& row) override {
      faults_.pass();
      sheet_.rows.push_back(row);
    }
    std::filesystem::path finish() override {
      faults_.pass();
      sheet_.finished = true;
      return sheet_.plan.folder / (sheet_.plan.fileName + ".xlsx");
    }

   private:
    RecordedSheet& sheet_;
    PlatformFaults& faults_;
  };
  PlatformFaults& faults_;
};

}  // namespace support
