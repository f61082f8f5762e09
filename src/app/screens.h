// The register of all screens: what the tests of all screens and the tour walk through. No Qt.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kit/screen.h"

namespace app {

struct Entry {
  std::string name;  // the class's name
  std::function<std::unique_ptr<kit::Screen>(kit::Desk&)> make;
};

const std::vector<Entry>& screens();

}  // namespace app
