// Faults of the store. what() tells in Chinese what is wrong and what the operator does next; whether the action was
// saved is told by who shows it (Store::saved()), but for Fault::Unsure, whose words say so themselves.
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
  Unreadable,  // just now: the folder or the disk does not answer
  ReadOnly,    // or no right to it
  Busy,        // in use by another computer, after the wait
  DiskFull,
  Disconnected,  // the server does not answer or the connection broke
  Unsure,        // it broke while a unit was being saved, and the server could not be asked yet
  RowGone,       // the current row was deleted meanwhile, or there is no current row
  Other,
};

class StoreError : public std::runtime_error {
 public:
  StoreError(Fault fault, const std::string& message) : std::runtime_error(message), fault(fault) {}
  const Fault fault;
};

}  // namespace store
