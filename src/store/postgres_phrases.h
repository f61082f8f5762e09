// How PostgreSQL says what engines say differently, and the functions that a schema needs for it.
#pragma once

#include <string>
#include <vector>

#include "store/engine.h"

namespace store {

const Phrases& postgresPhrases();
std::vector<std::string> postgresFunctions();  // statements that define them

}  // namespace store
