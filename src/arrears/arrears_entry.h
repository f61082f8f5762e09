// Enters what a student owes: up to three fee items, each in up to three instalments. Opened from the console, and from
// the fee window, which hands over what its lines lack.
#pragma once

#include "arrears/arrears_ledger.h"
#include "kit/editing.h"
#include "kit/screen.h"
#include "kit/validation.h"

namespace arrears {

// What the entry is opened with.
struct ArrearsFor {
  std::string current_xh{}, current_xq{};
  bool from_fee_window = false;
  struct FeeLine {
    std::string item;
    base::Money due, paid;
  };
  std::vector<FeeLine> fee_lines{};  // of the fee window, as they were when it opened the entry
  kit::Panel ConsolePanel = kit::Panel::None;
  std::array<std::string, 10> receipt_remarks{};  // what the next receipt says so far
};

// What became of it. Left without saving, nothing was added and the receipt says nothing.
struct ArrearsEntered {
  bool added = false;
  std::array<std::string, 10> receipt_remarks;
};

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
  explicit Formqfcl(kit::Desk& desk, ArrearsFor given = {});
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

  ArrearsEntered answer;

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
  std::array<std::string, 10> reminders() const;

  ArrearsFor given_;  // its current_xh goes with the student that is looked up
  std::string takenName_;
};

}  // namespace arrears
