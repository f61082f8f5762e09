#include "store/engine.h"

#include <random>

namespace store {

std::string newDesk() {
  std::random_device random;
  std::string name;
  for (int part = 0; part < 4; ++part) name += std::to_string(random()) + "-";
  return name;
}

}  // namespace store
