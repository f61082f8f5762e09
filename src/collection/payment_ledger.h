// The ledger of payments, without a screen: numbers, receipts, and the arrears that a receipt settles.
#pragma once

#include <string>
#include <vector>

#include "store/record_set.h"

namespace collection {

struct PaidLine {
  std::string sfxm;
  base::Money je;
  std::string arrearsLsh;  // the qfjl row that is paid by it; used only by a receipt that settles arrears
};

// What one collection brings in: a jfjl row a line, all under one receipt number.
struct Receipt {
  std::string xh, xm, bjmc, xq, xtbh, rxxs, jffs, skr;
  base::Date jfrq;
  bool settlesArrears = false;
  std::vector<PaidLine> lines;
};

// The numbers that follow the last row of the ledger. They are good only inside the unit of work that writes them.
std::string nextRecordNumber(store::Store& store, base::Date today);
std::string nextReceiptNumber(store::Store& store);

// Writes the rows, settles the arrears and gives back the receipt number, in one unit of work: the numbers are taken
// under the store's write lock, so that two computers never print one receipt number.
std::string saveReceipt(store::Store& store, const Receipt& receipt, base::DateTime now);

}  // namespace collection
