// The rights as the console's files name them.
#pragma once

#include "kit/rights.h"

namespace shell {

using kit::may;
using kit::refuse;
using enum kit::Right;

}  // namespace shell
