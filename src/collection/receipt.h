// The receipt on paper: what stands on it as plain data, and functions from that to a drawing. No screen, no printer.
#pragma once

#include <array>
#include <vector>

#include "kit/session.h"
#include "platform/drawing.h"
#include "store/record_set.h"

namespace collection {

// Summaries and remarks; a row of the receipt has the entry of its own place.
struct ReceiptNotes {
  std::array<std::string, 10> receipt_remarks{}, receipt_summaries{};
};

// What printing is handed; the rows are those of the receipt number.
struct ReceiptPrint {
  std::string print_fpbh{}, print_xh{}, print_xm{}, print_bjmc{}, print_xq{}, print_jffs{}, print_jfrq{};
  bool fee_normal_mode = true;
  ReceiptNotes notes{};
};

// The receipt of a payment once more, without remarks. Method and date are not read again: it shows those of the
// receipt that was printed last.
ReceiptPrint reprintOf(store::RecordSet& payment, const kit::Session& session);

struct ReceiptRow {
  std::string sfxm;
  base::Money je;
};

struct PrintedReceipt {
  std::string school, fpbh, xh, xm, bjmc, xq, jffs, jfrq;
  std::vector<ReceiptRow> rows;
  base::Money total;
  ReceiptNotes notes;
  std::string cashier;  // who prints it, also when another has taken the money
  base::DateTime printed;
};

PrintedReceipt readReceipt(store::Store& store, const kit::Session& session, const ReceiptPrint& print,
                           base::DateTime now);

enum class ReceiptLayout { None, One, Two, Preprinted };

ReceiptLayout chooseLayout(const kit::Session& session, bool fee_normal_mode, std::size_t rows);

// One line a row, as many as there are; the page grows with them.
platform::Drawing layoutOne(const PrintedReceipt& receipt);
// Five lines with a column of summaries.
platform::Drawing layoutTwo(const PrintedReceipt& receipt);

std::string receiptTitle(const PrintedReceipt& receipt);  // of the print job

}  // namespace collection
