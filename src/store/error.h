// Faults of the store. what() is a sentence in Chinese that tells the operator what to do next.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace store {

enum class Fault {
  Statement,      // text that the dialect does not know, a quote in a value, a type that does not fit
  NoSuchColumn,   // or no such table
  WrongPassword,  // or the file's beginning is damaged: the engine cannot tell them apart
  Missing,        // a file that should be there
  Damaged,
  ReadOnly,
  Busy,  // in use by another computer, after the wait
  DiskFull,
  Disconnected,  // the server does not answer or the connection broke; the words say what became of the action
  Unsure,        // it broke while a unit was being saved, and the server could not be asked yet
  RowGone,       // the current row was deleted meanwhile, or there is no current row
  Other,
};

class StoreError : public std::runtime_error {
 public:
  StoreError(Fault fault, const std::string& message) : std::runtime_error(message), fault(fault) {}
  const Fault fault;
};

constexpr std::string_view nothingSaved = "本次操作的内容全部没有保存！";
// The same error, whose words end with that.
inline StoreError withNothingSaved(const StoreError& error) {
  const std::string words = error.what();
  return StoreError(error.fault, words.ends_with(nothingSaved) ? words : words + std::string(nothingSaved));
}

}  // namespace store
