// What an edit screen is opened for: to add a row, or to change or delete the one that was selected.
#pragma once

#include <cstdint>

namespace kit {

enum class Mode { Add = 1, Modify = 2, Delete = 3 };
// The overview of the console that stands in front.
enum class Panel { None = 0, Students = 1, Payments = 2, Arrears = 3, FeeWindow = 4 };

struct Editing {
  Mode EditMode = Mode::Add;
  std::int64_t row = 0;              // the mark of the row; 0 when one is added
  Panel ConsolePanel = Panel::None;  // from where: rows keyed in an overview are marked as this computer's
};

}  // namespace kit
