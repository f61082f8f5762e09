// 上交凭证: the one printed document of a batch collection, on the paper of the receipts.
#pragma once

#include <string>

#include "base/money.h"
#include "platform/drawing.h"

namespace collection {

struct BatchVoucher {
  std::string school, person, xq, bjmc, sfxm, jfrq, cashier;
  base::Money standard;  // of one student
  int students = 0;
  base::Money total;
};

platform::Drawing batchVoucher(const BatchVoucher& voucher);

}  // namespace collection
