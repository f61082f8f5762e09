// The fee window: an operator at the front desk takes one student's money here, on up to ten lines and one receipt.
#pragma once

#include <array>
#include <utility>

#include "kit/screen.h"

namespace collection {

constexpr int feeLineCount = 10;

// One of the ten lines. It stands for a fee item of the student's standard or, in arrears mode, for an arrears row.
struct FeeLine {
  FeeLine(kit::Screen& screen, int index);

  kit::Field place;  // 1 to 10; in arrears mode the planned date bjrq
  kit::Field sfxm, due;
  kit::Check tick;  // shown only when there is a due amount
  kit::Field paid;
  std::string lsh;  // of the arrears row

  bool hasItem() const { return !sfxm.blank(); }
  base::Money dueAmount() const { return base::Money::leading(due.text()); }
  base::Money paidAmount() const { return base::Money::leading(paid.text()); }
  void offer(base::Money amount);  // shows the due amount and the tick box
  void clear();
};

using FeeLines = std::array<FeeLine, feeLineCount>;

class Formzctsf4 : public kit::Screen {  // 收费窗口
 public:
  explicit Formzctsf4(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Field xh{*this, "xh", "学号"};
  kit::Field xm{*this, "xm", "姓名"};
  kit::Field rxrq{*this, "rxrq", "入学日期", kit::Entry::Shown};
  kit::Field rxxs{*this, "rxxs", "入学形式"};
  kit::Field bjmc{*this, "bjmc", "院校班级名称"};
  kit::Field xq{*this, "xq", "交费所属学期"};
  kit::Field jfrq{*this, "jfrq", "交费日期", kit::Entry::Date};
  kit::Field jffs{*this, "jffs", "交费方式", kit::Entry::Pick};
  std::string xtbh;

  kit::Field modeHeading{*this, "modeHeading", "", kit::Entry::Shown};
  kit::Check arrearsMode{*this, "arrearsMode", "加载欠费"};
  kit::Check allLines{*this, "allLines", "全部选择"};
  FeeLines lines = makeLines(std::make_index_sequence<feeLineCount>());
  kit::Field totalDue{*this, "totalDue", "应交总额", kit::Entry::Shown};
  kit::Field totalPaid{*this, "totalPaid", "实交总额", kit::Entry::Shown};

  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action arrearsEntry{*this, "arrearsEntry", "欠费录入", "edit"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  template <std::size_t... Index> FeeLines makeLines(std::index_sequence<Index...>) {
    return {FeeLine(*this, static_cast<int>(Index))...};
  }
  void wireLine(FeeLine& line);
  void switchMode();
  void showMode();
  void clearAll();
  void loadStudent();
  void loadLines();
  void startInLines();

  void paidChanged(FeeLine& line);
  bool settleAmount(FeeLine& line);
  void tickAll();

  void confirmPayment();
  bool prepareShortfall();
  void enterArrears();
  void openArrearsEntry();
  bool valid();
  void save();
  void writeArrearsRemarks();
  void print(const std::string& fpbh);

  base::Money paidTotal_;
};

}  // namespace collection
