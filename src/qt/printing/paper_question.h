// What a person is asked before a document goes onto a paper that is not its own, or beyond its paper's edge.
#pragma once

#include <optional>

#include "printing/placing.h"
#include "qt/printing/print_settings.h"

namespace qt {

struct Placed {
  printing::Placing placing;
  OtherPaper said;
};

// Nothing: the person stops.
std::optional<Placed> placed(const platform::Drawing& drawing, const PrintSettings& settings, QWidget* parent);

}  // namespace qt
