// Five lines of summaries and remarks, typed just before a receipt is printed.
#pragma once

#include <array>

#include "collection/receipt.h"
#include "kit/screen.h"

namespace collection {

class Formzctsf8 : public kit::Screen {  // 收据摘要及备注信息
 public:
  explicit Formzctsf8(kit::Desk& desk, ReceiptNotes proposed = {});
  void load() override;
  kit::Layout layout() override;

  struct Line {
    Line(kit::Screen& screen, int number);
    kit::Field number, summary, remark;
  };
  std::array<Line, 5> lines{Line(*this, 1), Line(*this, 2), Line(*this, 3), Line(*this, 4), Line(*this, 5)};
  ReceiptNotes answer;  // as proposed, until it is typed or dropped
  kit::Action print{*this, "print", "打印备注", "printer"}, withoutNotes{*this, "withoutNotes", "不打印备注", "x"};

 private:
  void keepNotes();
  void dropNotes();
};

}  // namespace collection
