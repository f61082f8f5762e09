// The real clock and the real computer.
#pragma once

#include <optional>

#include "platform/clock.h"
#include "platform/desktop.h"

namespace qt {

class QtClock : public platform::Clock {
 public:
  base::DateTime now() override;
};

class QtDesktop : public platform::Desktop {
 public:
  QtDesktop(std::filesystem::path programFolder, bool chosen) : folder_(std::move(programFolder)), chosen_(chosen) {}
  platform::WorkArea workArea() override;
  std::string computerName() override;
  std::string computerMark() override;
  std::filesystem::path programFolder() override { return folder_; }
  bool folderChosen() override { return chosen_; }
  std::filesystem::path deskFolder() override;
  void SetDisplayMode(int width, int height, int depth, int rate) override;
  bool startProgram(const std::filesystem::path& program) override;
  std::filesystem::path exportFolder() override;
  bool openDocument(const std::filesystem::path& file) override;

  struct DisplayMode {
    int width, height, depth, rate;
  };
  std::optional<DisplayMode> wishedMode;  // the last one asked for; the desktop keeps its own

 private:
  std::filesystem::path folder_;
  bool chosen_;
};

}  // namespace qt
