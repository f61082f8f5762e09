// The printer of the program: a preview on the screen, from there paper or PDF.
#pragma once

#include "platform/printer.h"

namespace qt {

class QtPrinter : public platform::Printer {
 public:
  void show(const platform::Drawing& drawing) override;
};

}  // namespace qt
