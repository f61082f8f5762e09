// Gates that stand on the rights.
#pragma once

#include <vector>

#include "kit/action.h"
#include "kit/rights.h"

namespace shell {

using kit::may;
using kit::refuse;
using enum kit::Right;

// Enabled only with one of the rights; settled once, when the console loads.
struct Gate {
  kit::Action& action;
  std::vector<int> anyOf;
};

void settle(const kit::Desk& desk, const std::vector<Gate>& gates);

}  // namespace shell
