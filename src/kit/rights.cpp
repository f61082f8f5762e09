#include "kit/rights.h"

#include <algorithm>

namespace kit {

bool mayAny(const Desk& desk, const std::vector<int>& anyOf) {
  return anyOf.empty() || std::ranges::any_of(anyOf, [&](int right) { return may(desk, right); });
}

void enableByRights(const Desk& desk, const std::vector<Gate>& gates) {
  for (const Gate& gate : gates) gate.action.enable(mayAny(desk, gate.anyOf));
}

void refuse(Desk& desk) { desk.person.tell(Box::Information, "请您先请示授权再进行此操作！      ", "权限越界"); }

}  // namespace kit
