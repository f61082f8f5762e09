// Receipts as the fee window saves them, and what must hold of them whatever has happened.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "store/configurations.h"

namespace store {

struct Receipt {  // what a writer reports once it is saved
  long long number;
  int lines;
};

// The number comes from the last row, inside the unit.
Receipt save(Store& store, int lines);

// Every receipt is wholly there; the answer is number to lines.
std::map<long long, int> receipts(const std::filesystem::path& folder);
std::string integrity(const Folder& folder);  // of the main database: "ok"

unsigned howMany(const char* variable, unsigned usual);  // rounds of a drill: what the environment asks for

}  // namespace store
