// The ledger of payments, without a screen: numbers, receipts, and the arrears that a receipt settles.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "arrears/arrears_ledger.h"
#include "platform/clock.h"

namespace collection {

struct PaidLine {
  std::string sfxm;
  base::Money je;
  arrears::OpenRow owed{};  // the arrears row that is paid by it; used only by a receipt that settles arrears
};

// What one collection brings in: a jfjl row a line, all under one receipt number.
struct Receipt {
  std::string xh, xm, bjmc, xq, xtbh, rxxs;
  std::optional<std::string> jffs;  // without a value the column is left alone
  std::string skr;
  base::Date jfrq;
  bool settlesArrears = false;
  std::vector<PaidLine> lines;
  std::optional<std::string> bz = std::nullopt;  // as jffs
};

// The numbers that follow the last row of the ledger. They are good only inside the unit of work that writes them, and
// only as far as they are free.
std::string nextRecordNumber(store::Store& store, base::Date today);
std::string nextReceiptNumber(store::Store& store);

// The term that a collection starts with: that of the last receipt, whoever paid it; the operator overwrites it once a
// term.
std::string offeredTerm(store::Store& store, base::Date today);

// Writes the rows, settles the arrears and gives back the receipt number, in one unit of work: day and numbers are
// taken under the store's write lock, so that two computers never print one receipt number.
std::string saveReceipt(store::Store& store, const Receipt& receipt, platform::Clock& clock);
// The same for several, each under a number of its own.
std::vector<std::string> saveReceipts(store::Store& store, std::span<const Receipt> receipts, platform::Clock& clock);

}  // namespace collection
