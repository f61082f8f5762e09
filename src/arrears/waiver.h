// Waiving arrears, from the console's two lists.
#pragma once

#include <cstdint>

#include "kit/desk.h"

namespace arrears {

// The card's list waives whatever its operator has selected, settled rows too: the front desk sees open rows only. The
// overview lists every row, and refuses those that are settled or waived already.
enum class WaivedFrom { Card, Overview };

// The row that is selected (its mark; 0: none), or all rows of its student: tests, asks, waives, tells. True: the list
// is to be read again.
bool waiveOne(kit::Desk& desk, std::int64_t selected, WaivedFrom list);
bool waiveAll(kit::Desk& desk, std::int64_t selected, WaivedFrom list);

}  // namespace arrears
