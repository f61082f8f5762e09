// Portraits in the manner of passport photos, drawn from ellipses: a handful of looks, as bitmap files.
#pragma once

#include "store/value.h"

namespace sample {

constexpr int portraitLooks = 6;  // of each sex
store::Bytes portrait(bool male, int look);

}  // namespace sample
