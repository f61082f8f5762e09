// The fee window: an operator at the front desk takes one student's money here, on up to ten lines and one receipt.
#pragma once

#include <utility>

#include "collection/fee_lines.h"
#include "collection/payment_ledger.h"
#include "collection/receipt.h"

namespace collection {

struct FeeWindowFor {
  std::string current_xh;
  bool fee_normal_mode = true;  // else the student's arrears are paid
};

class Formzctsf4 : public kit::Screen {  // 收费窗口
 public:
  explicit Formzctsf4(kit::Desk& desk, FeeWindowFor given = {});
  void load() override;
  kit::Layout layout() override;
  void moveOnFrom(const kit::Member& member) override;

  kit::Field xh{*this, "xh", "学号"};
  kit::Field xm{*this, "xm", "姓名"};
  kit::Field rxrq{*this, "rxrq", "入学日期", kit::Entry::Shown};
  kit::Field rxxs{*this, "rxxs", "入学形式"};
  kit::Field bjmc{*this, "bjmc", "院校班级名称"};
  kit::Field xq{*this, "xq", "交费所属学期"};
  kit::Field jfrq{*this, "jfrq", "交费日期", kit::Entry::Date};
  kit::Field jffs{*this, "jffs", "交费方式", kit::Entry::Pick};
  std::string xtbh, current_xh;
  bool fee_normal_mode;
  bool arrears_entry_shown = false;  // by a shortfall: not a second time
  ReceiptNotes notes;                // of the receipt to come

  kit::Field modeHeading{*this, "modeHeading", "", kit::Entry::Shown};
  kit::Check arrearsMode{*this, "arrearsMode", "加载欠费"};
  kit::Check allLines{*this, "allLines", "全部选择"};
  FeeLines lines = makeLines(std::make_index_sequence<std::tuple_size_v<FeeLines>>());
  kit::Field totalDue{*this, "totalDue", "应交总额", kit::Entry::Shown};
  kit::Field totalPaid{*this, "totalPaid", "实交总额", kit::Entry::Shown};

  kit::Field difference{*this, "difference", "差额", kit::Entry::Shown};  // of due and paid, once something is paid
  kit::Field already{*this, "already", "", kit::Entry::Shown};  // what was paid in this term before, and what is owed

  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action arrearsEntry{*this, "arrearsEntry", "欠费录入", "edit"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  template <std::size_t... Index> FeeLines makeLines(std::index_sequence<Index...>) {
    return {FeeLine(*this, static_cast<int>(Index))...};
  }
  // Loading and modes.
  void switchMode();
  void showMode();
  void clearAll();
  void loadStudent();
  void loadLines();
  void showAlready();
  void focusFirst();

  // Ticks, amounts and totals.
  void wireLine(FeeLine& line);
  void tickAll();
  void untickAll();
  void amountChanged(FeeLine& line);
  void showDifference();
  bool completeAmount(FeeLine& line);

  // Confirming, in fee_window_confirm.cpp.
  void confirmPayment();
  bool prepareShortfall();
  void enterArrears();
  void openArrearsEntry();
  bool valid();
  void save();
  void studentMustStand();
  Receipt receipt() const;
  void remarkArrears(ReceiptNotes& printed) const;
  std::int64_t student_ = 0;             // the row that was loaded; 0: the number is nobody's
  std::array<std::string, 3> loaded_{};  // its number, name and class
  void print(const std::string& fpbh);
};

}  // namespace collection
