// The hand-made parts of windows, by the names that layouts give them.
#pragma once

#include "qt/renderer.h"

namespace app {

const qt::Views& views();

}  // namespace app
