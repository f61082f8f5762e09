// The clock on the wall; tests hold it still.
#pragma once

#include "base/date.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual base::DateTime now() = 0;
  base::Date today() { return now().date; }
};

}  // namespace platform
