// The register of all screens: what the tests of all screens and the tour walk through. No Qt.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kit/editing.h"
#include "kit/screen.h"

namespace app {

// What screens are opened with where nobody opens them: each takes of it what it asks for.
struct Opening {
  kit::Editing editing;
  std::string xh, fpbh;
};

struct Entry {
  std::string name;  // the class's name
  std::function<std::unique_ptr<kit::Screen>(kit::Desk&, const Opening&)> make;
  bool edits;  // in three modes
};

const std::vector<Entry>& screens();

}  // namespace app
