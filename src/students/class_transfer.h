// Class transfer without a screen: moves students to another class with all that carries a copy of the class.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/store.h"

namespace students {

// Moves each name of the class, in order, in one unit of work; their system numbers follow the last one of the
// to-class. Names that the class does not have are passed over. visit hears each name before its rows are written.
void transferStudents(store::Store& store, const std::string& fromClass, const std::string& toClass,
                      const std::vector<std::string>& names,
                      const std::function<void(const std::string& name)>& visit = {});

}  // namespace students
