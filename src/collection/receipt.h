// The receipt on paper: what stands on it as plain data, and functions from that to a drawing. No screen, no printer.
#pragma once

#include <array>
#include <vector>

#include "kit/session.h"
#include "platform/drawing.h"

namespace collection {

struct ReceiptRow {
  std::string sfxm;
  base::Money je;
};

struct PrintedReceipt {
  std::string school, fpbh, xh, xm, bjmc, xq, jffs, jfrq;
  std::vector<ReceiptRow> rows;
  base::Money total;
  std::array<std::string, 10> remarks, summaries;  // a row has the entry of its own place
  std::string cashier;                             // who prints it, also when another has taken the money
  base::DateTime printed;
};

// The rows of the receipt number that the session hands over to printing, with everything else that it hands over.
PrintedReceipt readReceipt(store::Store& store, const kit::Session& session, base::DateTime now);

enum class ReceiptLayout { None, One, Two, Preprinted };

ReceiptLayout chooseLayout(const kit::Session& session, std::size_t rows);

// One line a row, as many as there are; the page grows with them.
platform::Drawing layoutOne(const PrintedReceipt& receipt);
// Five lines with a column of summaries.
platform::Drawing layoutTwo(const PrintedReceipt& receipt);

std::string receiptTitle(const PrintedReceipt& receipt);  // of the print job

}  // namespace collection
