// One tab of the setup: a grid with the buttons that add, change and delete its rows.
#pragma once

#include "kit/screen.h"

namespace feesetup {

struct SetupTab {
  SetupTab(kit::Screen& screen, store::Store& store, const std::string& table, std::vector<kit::ListColumn> columns);
  kit::Node group(std::string title);

  kit::Grid grid;
  kit::Action add, modify, remove;
};

}  // namespace feesetup
