// The class name ties the rows of ten tables to a class; renaming or deleting a class walks them.
#pragma once

#include <string>

#include "store/store.h"

namespace feesetup {

void renameClass(store::Store& store, const std::string& from, const std::string& to);
void deleteClassRows(store::Store& store, const std::string& name);

}  // namespace feesetup
