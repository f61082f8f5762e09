// Faults of the store. what() is a sentence in Chinese that tells the operator what to do next.
#pragma once

#include <stdexcept>
#include <string>

namespace store {

enum class Fault {
  Statement,      // text that the dialect does not know, a quote in a value, a type that does not fit
  NoSuchColumn,   // or no such table
  WrongPassword,  // or the file's beginning is damaged: the engine cannot tell them apart
  Missing,        // a file that should be there
  Damaged,
  ReadOnly,
  Busy,           // in use by another computer, after the wait
  DiskFull,
  RowGone,        // the current row was deleted meanwhile, or there is no current row
  Other,
};

class StoreError : public std::runtime_error {
 public:
  StoreError(Fault fault, const std::string& message) : std::runtime_error(message), fault(fault) {}
  const Fault fault;
};

}  // namespace store
