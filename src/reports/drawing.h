// Draws a report: the rows of a set in bands over as many portrait pages as they take.
#pragma once

#include <string>

#include "base/date.h"
#include "platform/drawing.h"
#include "reports/report.h"
#include "store/record_set.h"

namespace reports {

struct Printing {
  std::string school;
  base::DateTime time;
  std::string period{};  // below the title, when the report has one
};

platform::Drawing draw(const Report& report, store::RecordSet& rows, const Printing& printing);

}  // namespace reports
