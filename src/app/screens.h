// The register of all screens: what the tests of the windows and the tour walk through.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kit/screen.h"
#include "qt/renderer.h"

namespace app {

struct Entry {
  std::string name;  // the class's name
  std::function<std::unique_ptr<kit::Screen>(kit::Desk&)> make;
};

const std::vector<Entry>& screens();

// The hand-made parts of windows, by the names that layouts give them.
const qt::Views& views();

}  // namespace app
