// From the confirm button to the last row and the receipt.
#include <algorithm>
#include <utility>

#include "arrears/arrears_entry.h"
#include "base/text.h"
#include "collection/fee_window.h"
#include "collection/receipt_notes.h"
#include "collection/receipt_print.h"
#include "kit/at_exit.h"
#include "kit/validation.h"
#include "register/settings.h"

namespace collection {

void Formzctsf4::confirmPayment() {
  // A key can confirm while an amount is still being typed: it is taken as if the field had been left.
  if (!std::all_of(lines.begin(), lines.end(), [this](FeeLine& line) { return completeAmount(line); })) return;
  if (fee_normal_mode) {
    school::loadArrearsSettings(desk);
    if (desk.session.shortfall_opens_arrears && !prepareShortfall()) return;
  }
  save();
}

// What the item named by the settings lacks is entered as arrears before the payment is written. False: without a line
// of that item the button does nothing, until the setting names an item of the window again.
bool Formzctsf4::prepareShortfall() {
  const std::string item = base::trim(desk.session.arrears_item);
  const auto line =
      std::find_if(lines.begin(), lines.end(), [&](const FeeLine& one) { return one.sfxm.trimmed() == item; });
  if (line == lines.end()) return false;
  const base::Money due = line->dueAmount(), paid = line->paidAmount();
  if (paid >= due) return true;
  notes.receipt_remarks[0] =
      desk.session.arrears_in_remark ? "本期应交" + item + due.fixed2() + "元,欠费" + (due - paid).fixed2() + "元" : "";
  if (!std::exchange(arrears_entry_shown, true)) openArrearsEntry();
  return true;
}

void Formzctsf4::enterArrears() {
  school::loadArrearsSettings(desk);
  arrears_entry_shown = false;
  openArrearsEntry();
}

void Formzctsf4::openArrearsEntry() {
  current_xh = xh.trimmed();
  arrears::ArrearsFor given{.current_xh = current_xh,
                            .current_xq = xq.trimmed(),
                            .from_fee_window = true,
                            .receipt_remarks = notes.receipt_remarks};
  for (const FeeLine& line : lines)
    given.fee_lines.push_back({line.sfxm.trimmed(), line.dueAmount(), line.paidAmount()});
  notes.receipt_remarks = open<arrears::Formqfcl>(std::move(given)).receipt_remarks;
}

bool Formzctsf4::valid() {
  const auto nothingPaid = [this] { return totalPaid.money().zero(); };
  const std::vector<kit::Rule> rules = {
      {&xh, kit::longerThan(xh, 20), "学号不能超过20个字符 ！       ", "操作提示"},
      {&xh, kit::blank(xh), "学号不能为空 ！       ", kit::wrongInput},
      {&xm, kit::longerThan(xm, 20), "姓名不能超过20个字符 ！       ", "操作提示"},
      {&xm, kit::blank(xm), "姓名不能为空 ！       ", kit::wrongInput},
      {&xq, kit::longerThan(xq, 20), "学年学期不能超过20个字符 ！       ", "操作提示"},
      {&xq, kit::blank(xq), "学年学期不能为空 ！       ", kit::wrongInput},
      {&jfrq, kit::blank(jfrq), "交费日期不能为空 ！       ", kit::wrongInput},
      {&jfrq, kit::notDate(jfrq), "日期格式不对,应该为 yyyy-m-d ！       ", kit::wrongInput},
      {&jffs, kit::blank(jffs), "交费方式不能为空 ！       ", kit::wrongInput},
      {&jffs, kit::longerThan(jffs, 30), "交费方式不能超过30个字符 ！       ", "操作提示"},
      {&lines[0].paid, nothingPaid, "收费总额不能为零 ！     ", "操作提示", kit::Box::Warning},
  };
  return kit::holds(desk.person, rules);
}

Receipt Formzctsf4::receipt() const {
  Receipt receipt{.xh = xh.trimmed(),
                  .xm = xm.trimmed(),
                  .bjmc = bjmc.trimmed(),
                  .xq = xq.trimmed(),
                  .xtbh = base::trim(xtbh),
                  .rxxs = rxxs.trimmed(),
                  .jffs = jffs.trimmed(),
                  .skr = desk.session.SessionUser,
                  .jfrq = jfrq.date().value(),
                  .settlesArrears = !fee_normal_mode,
                  .lines = {}};
  // 0.00 counts as filled and gets its row.
  for (const FeeLine& line : lines)
    if (!line.paid.blank()) receipt.lines.push_back({line.sfxm.trimmed(), line.paidAmount(), line.owed});
  return receipt;
}

void Formzctsf4::remarkArrears(ReceiptNotes& printed) const {
  if (!desk.session.arrears_in_remark) return;
  for (std::size_t index = 0; index < lines.size(); ++index) {
    const FeeLine& line = lines[index];
    if (!line.hasItem()) continue;
    const auto planned = line.place.date();
    const std::string date = planned ? planned->chinese() : line.place.trimmed();
    const base::Money due = line.dueAmount(), paid = line.paidAmount();
    printed.receipt_remarks[index] = paid.zero()   ? "提示：" + date + "应补交" + due.fixed2() + "元！"
                                     : paid == due ? "补交" + date + "欠费，此笔结清！"
                                                   : "补交" + date + "欠费，还欠" + (due - paid).fixed2() + "元";
  }
}

// No money is taken under a number, a name or a class that another desk has taken from the student meanwhile. What the
// operator typed over stands as it was typed.
void Formzctsf4::studentMustStand() {
  if (student_ == 0) return;
  store::RecordSet student = rows("select * from xs");
  const bool there = student.goTo(student_);
  const auto still = [&](const char* column, const kit::Field& field, const std::string& loaded) {
    return field.trimmed() != loaded || student.get(column).trimmed() == loaded;
  };
  if (there && still("xh", xh, loaded_[0]) && still("xm", xm, loaded_[1]) && still("bjmc", bjmc, loaded_[2])) return;
  throw store::StoreError(store::Fault::RowGone,
                          "“" + xm.trimmed() + "”的学籍资料已被其他计算机修改或删除，请撤销后重新打开收费窗口！");
}

void Formzctsf4::save() {
  if (!valid()) return;
  store::Unit unit(desk.store);
  studentMustStand();
  const std::string fpbh = saveReceipt(desk.store, receipt(), desk.clock);
  unit.finish();
  desk.person.say("收据 " + fpbh + " 已保存，可按“重新打印该单记录”再打印");
  // The money is in the ledger now: the window closes whatever the printer says, so that nobody confirms twice.
  const kit::AtExit leaving([this] { close(); });
  if (askInfo("收费操作成功！打印收据吗？      ", "操作提示")) print(fpbh);
}

void Formzctsf4::print(const std::string& fpbh) {
  ReceiptPrint print{.print_fpbh = fpbh,
                     .print_xh = xh.trimmed(),
                     .print_xm = xm.trimmed(),
                     .print_bjmc = bjmc.trimmed(),
                     .print_xq = xq.trimmed(),
                     .print_jffs = jffs.trimmed(),
                     .print_jfrq = jfrq.date().value().iso(),
                     .fee_normal_mode = fee_normal_mode,
                     .notes = notes};
  desk.session.print_jffs = print.print_jffs;
  desk.session.print_jfrq = print.print_jfrq;
  if (!fee_normal_mode) remarkArrears(print.notes);
  if (desk.session.receipt_style != 3) print.notes = open<Formzctsf8>(print.notes);
  open<Formzctsf5>(print);
}

}  // namespace collection
