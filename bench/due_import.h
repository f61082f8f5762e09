// The import of amounts due against one statement that does the same.
#pragma once

#include "measure.h"
#include "office.h"

namespace bench {

Measure importing(Office& office);  // of a school of 10,000 students; what it adds for that it takes away again

}  // namespace bench
