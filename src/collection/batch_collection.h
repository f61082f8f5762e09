// Batch collection without a screen: one fee item from many students of a class, each under a receipt of their own.
#pragma once

#include <string>
#include <vector>

#include "base/date.h"
#include "base/money.h"
#include "platform/clock.h"
#include "store/store.h"

namespace collection {

struct BatchPayment {
  std::int64_t student = 0;  // the mark of the row in the register
  std::string xm;
  base::Money je;
};

struct Batch {
  std::string bjmc, sfxm, xq, skr;
  base::Date jfrq;
  std::vector<BatchPayment> payments;  // in the order of the receipts
};

struct BatchResult {
  int students = 0;
  base::Money total;
  std::vector<std::string> missing;  // who has left the class or the school: nothing was written for them
};

// Looks at the students again and writes their rows in one unit of work.
BatchResult collectBatch(store::Store& store, const Batch& batch, platform::Clock& clock);

}  // namespace collection
