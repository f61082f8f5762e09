#include "shell/rights.h"

#include <algorithm>

namespace shell {

void settle(const kit::Desk& desk, const std::vector<Gate>& gates) {
  for (const Gate& gate : gates)
    gate.action.enable(std::any_of(gate.anyOf.begin(), gate.anyOf.end(), [&](int right) { return may(desk, right); }));
}

}  // namespace shell
