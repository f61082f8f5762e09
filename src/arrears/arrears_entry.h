// Enters what a student owes: up to three fee items, each in up to three instalments. Opened from the console, and from
// the fee window, which hands over what its lines lack.
#pragma once

#include "arrears/arrears_ledger.h"
#include "kit/screen.h"
#include "kit/validation.h"

namespace arrears {

struct InstalmentFields {
  InstalmentFields(kit::Screen& screen, const std::string& suffix);
  bool filled() const { return !date.blank() && !amount.blank(); }

  kit::Field date, amount;
};

struct DebtLine {
  DebtLine(kit::Screen& screen, const std::string& suffix);
  double amount(std::size_t place) const;  // 0 when nothing stands there

  kit::Field sfxm, total;
  std::array<InstalmentFields, 3> instalments;
  bool sharing = false;  // one amount is being worked out from another
};

class Formqfcl : public kit::Screen {  // 学生欠费信息编辑
 public:
  explicit Formqfcl(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Field xh{*this, "xh", "学号"};
  kit::Field xm{*this, "xm", "姓名", kit::Entry::Pick};
  kit::Field bjmc{*this, "bjmc", "班级", kit::Entry::Shown};
  kit::Field xq{*this, "xq", "学年学期", kit::Entry::Shown};
  kit::Field qfts{*this, "qfts", "提示提前量", kit::Entry::Shown};
  kit::Field status{*this, "status", "", kit::Entry::Shown};
  std::array<DebtLine, 3> lines{DebtLine(*this, "0"), DebtLine(*this, "1"), DebtLine(*this, "2")};
  std::string xtbh;  // the system number, not shown

  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  // The student.
  void findByNumber();
  void findByName();
  void take(store::RecordSet& student);
  void clearHead();

  // The lines.
  void wire(DebtLine& line);
  void totalChanged(DebtLine& line);
  void secondChanged(DebtLine& line);
  void thirdChanged(DebtLine& line);
  void loadShortfall();

  // Saving, in arrears_entry_save.cpp.
  void save();
  bool sameNumber();
  bool valid();
  std::vector<kit::Rule> rules();
  ArrearsEntry entry() const;
  void remind();

  std::string takenName_;
};

}  // namespace arrears
