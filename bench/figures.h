// What adds up or marks many rows at once: the statistics bars, the submission of a shift, the comparison tables.
#pragma once

#include "measure.h"
#include "office.h"

namespace bench {

Measure studentFigures(Office& office);
Measure paymentFigures(Office& office);
Measure arrearsFigures(Office& office);
Measure submitting(Office& office);
Measure unpaidList(Office& office);
Measure comparison(Office& office);

}  // namespace bench
