// Class transfer without a screen: moves students to another class with all that carries a copy of the class.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/store.h"

namespace students {

struct Mover {  // a student who was ticked
  std::int64_t row;
  std::string xm;
};

// Moves the students, in order, in one unit of work; their system numbers follow the last one of the to-class. visit
// hears each name before its rows are written. Raises a StoreError in words, and moves nobody, when the to-class is
// gone or a student is no longer in the from-class.
void transferStudents(store::Store& store, const std::string& fromClass, const std::string& toClass,
                      const std::vector<Mover>& movers, const std::function<void(const std::string& name)>& visit = {});

}  // namespace students
