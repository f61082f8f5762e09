// Waiving arrears, from the console's two lists.
#pragma once

#include <string>

#include "kit/desk.h"

namespace arrears {

// The card's list waives whatever its operator has selected, settled rows too: the front desk sees open rows only. The
// overview lists every row, and refuses those that are settled or waived already.
enum class WaivedFrom { Card, Overview };

// The row with this number, or all rows of its student: tests, asks, waives, tells. True: something was waived.
bool waiveOne(kit::Desk& desk, const std::string& lsh, WaivedFrom list);
bool waiveAll(kit::Desk& desk, const std::string& lsh, WaivedFrom list);

}  // namespace arrears
