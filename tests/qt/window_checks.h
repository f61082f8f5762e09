// What every window of the program must hold.
#pragma once

#include <string>
#include <vector>

#include "qt/screen_window.h"

namespace support {

// Each fault names screen and member: members without a place or a widget, a tab order that is not the reading order,
// texts that are cut, a window larger than the smallest desktop.
std::vector<std::string> faults(qt::ScreenWindow& window);

}  // namespace support
