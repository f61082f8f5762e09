// The preprinted receipt form: a template of labels positioned over the form's fields, which is filled and printed as
// it stands. Places are twips, 1/1440 inch, from the form's origin.
#pragma once

#include <deque>

#include "collection/receipt.h"
#include "kit/screen.h"

namespace collection {

struct FormLabel : kit::Field {
  FormLabel(kit::Screen& screen, std::string name, int left, int top, int width)
      : Field(screen, std::move(name), "", kit::Entry::Shown), left(left), top(top), width(width) {}
  const int left;
  int top;
  const int width;
  int lines = 1;        // of the label's height
  double size = 9;      // points
  bool amount = false;  // ends where the label does
};

class Formzctsf2 : public kit::Screen {  // 江西省学校专用收据
 public:
  explicit Formzctsf2(kit::Desk& desk, const ReceiptPrint& print = {});
  void load() override;
  kit::Layout layout() override;

  void fill(const PrintedReceipt& receipt);
  platform::Drawing drawing() const;

  FormLabel Labelfpbh{*this, "Labelfpbh", 1080, 935, 840};
  FormLabel Labeljfrq{*this, "Labeljfrq", 3360, 935, 1050};
  FormLabel Labeljffs{*this, "Labeljffs", 6600, 935, 1050};
  FormLabel Labelxm{*this, "Labelxm", 960, 1800, 630};
  FormLabel Labelxh{*this, "Labelxh", 4080, 1800, 1470};
  FormLabel Labelbjmc{*this, "Labelbjmc", 5880, 1800, 1680};
  FormLabel Labelxq{*this, "Labelxq", 7800, 1800, 1470};
  std::deque<FormLabel> Labelsfxm, Labelje;  // seven lines
  FormLabel words{*this, "words", 2880, 4440, 840};
  FormLabel total{*this, "total", 7560, 4440, 735};
  FormLabel cashier{*this, "cashier", 6360, 4865, 420};
  FormLabel notice{*this, "notice", 7320, 4920, 1275};

 private:
  std::vector<const FormLabel*> labels() const;
  double room(const FormLabel& label) const;
  const std::string print_bjmc, print_xq;
  std::string title_;
};

}  // namespace collection
