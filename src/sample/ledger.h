// What the school has taken in and what it is still owed: receipts and arrears of several years, in order of time.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "sample/school.h"

namespace sample {

struct Line {
  int item;
  base::Money amount;
};

struct Receipt {
  base::Date date;
  std::size_t student, term;
  std::vector<Line> lines;  // 1 to 5
};

struct Arrears {
  enum class State { Open, Short, Settled, Waived };
  base::Date since, due;
  std::size_t student, term;
  base::Money amount, paid;
  State state;
  std::optional<base::Date> changed;  // the day of the payment or the waiver
};

struct Ledger {
  std::vector<std::string> terms;  // their labels, oldest first
  std::vector<Receipt> receipts;   // by date
  std::vector<Arrears> arrears;    // of tuition, by date
};

// Exactly so many payments, one a line. What a student has paid of a term's tuition, still owes and was let off add up
// to the charge. Nothing lies behind the day.
Ledger makeLedger(Random& random, const School& school, long long payments, base::Date today);
long long usualPayments(int students);

}  // namespace sample
