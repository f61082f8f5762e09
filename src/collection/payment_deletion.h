// Deleting payments at the front desk, without a screen: only what is not submitted, and only one's own.
#pragma once

#include <optional>
#include <string>

#include "store/record_set.h"

namespace collection {

class PaymentDeletion {
 public:
  // The row, or every row of its receipt.
  enum class Scope { Payment, Receipt };
  PaymentDeletion(store::Store& store, std::int64_t row, Scope scope, std::string user)
      : store_(store), row_(row), scope_(scope), user_(std::move(user)) {}

  // Why it cannot be, in words for the operator; nothing when it can. Asked before the question.
  std::optional<std::string> refused();
  // Looks again and deletes, in one unit of work. What is told has kept everything as it was.
  std::optional<std::string> carryOut();

 private:
  store::Store& store_;
  const std::int64_t row_;
  const Scope scope_;
  const std::string user_;
  std::optional<std::string> receipt_;  // the receipt number that was looked at first
};

}  // namespace collection
