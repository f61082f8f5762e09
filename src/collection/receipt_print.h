// Stands while a receipt is printed.
#pragma once

#include "collection/receipt.h"
#include "kit/loading_screen.h"

namespace collection {

class Formzctsf5 : public kit::LoadingScreen {  // 收据打印
 public:
  explicit Formzctsf5(kit::Desk& desk, ReceiptPrint print = {});

 private:
  void proceed() override;
  std::optional<platform::Drawing> drawn() const;
  platform::Drawing preprintedForm(const PrintedReceipt& receipt) const;
  const ReceiptPrint print_;
};

}  // namespace collection
