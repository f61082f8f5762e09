// The printer: everything is shown in a preview first, where the person prints it or saves it as PDF.
#pragma once

#include "platform/drawing.h"

namespace platform {

class Printer {
 public:
  virtual ~Printer() = default;
  virtual void show(const Drawing& drawing) = 0;  // returns when the preview has been closed
};

}  // namespace platform
