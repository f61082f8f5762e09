// The teachers of a made-up school: one for each class, and others up to forty.
#pragma once

#include "sample/random.h"
#include "sample/school.h"
#include "store/record_set.h"

namespace sample {

void writeTeachers(store::Store& store, Random& random, const School& school, base::Date today,
                   const std::string& entered);

}  // namespace sample
