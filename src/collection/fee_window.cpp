#include "collection/fee_window.h"

#include <algorithm>

#include "base/text.h"
#include "kit/validation.h"
#include "register/students.h"

namespace collection {

constexpr kit::Colour withinDue{0, 0, 255}, aboveDue{255, 0, 255};
constexpr kit::Colour shortColour{176, 32, 32};
constexpr kit::Colour normalHeading{0, 96, 96}, arrearsHeading{192, 0, 0};

Formzctsf4::Formzctsf4(kit::Desk& all, FeeWindowFor given)
    : Screen(all, "Formzctsf4", "收费窗口"),
      current_xh(std::move(given.current_xh)),
      fee_normal_mode(given.fee_normal_mode) {
  xq.setTip("新学期收费，请在此修改");
  arrearsMode.setTip("勾选：补交欠费；取消勾选：正常收费");
  allLines.setTip("勾选：按应交金额填入各项；取消勾选：清空各项");
  confirm.enable(false);
  arrearsEntry.enable(false);
  allLines.enable(false);
  totalDue.rightAligned = totalPaid.rightAligned = difference.rightAligned = true;
  totalDue.prominent = totalPaid.prominent = modeHeading.prominent = true;

  for (FeeLine& line : lines) wireLine(line);
  xq.onLeave([this] { showAlready(); });
  xh.onChange([this] { arrearsEntry.enable(!xh.blank()); });
  jffs.offers("select jffs from jfjl group by jffs", "jffs");
  totalDue.onChange([this] {
    allLines.set(false);
    allLines.enable(!totalDue.money().zero());
    showDifference();
  });
  allLines.onChange([this] { allLines.on() ? tickAll() : untickAll(); });
  arrearsMode.onChange([this] { switchMode(); });
  confirm.onPress([this] { confirmPayment(); });
  arrearsEntry.onPress([this] { enterArrears(); });
  cancel.onPress([this] { close(); });
}

void Formzctsf4::load() {
  if (fee_normal_mode) {
    loadStudent();
    loadLines();
  } else {
    arrearsMode.set(true);
  }
  showMode();
  showAlready();
  focusFirst();
}

// The window opens where the money is: the space bar ticks all lines, Enter takes it. The student's data stand before
// it in the reading order and are seldom changed. A student without standards starts in the first amount that can be
// typed.
void Formzctsf4::focusFirst() {
  const auto first = std::find_if(lines.begin(), lines.end(), [](const FeeLine& line) { return line.hasItem(); });
  if (allLines.enabled()) allLines.focus();
  else if (first != lines.end()) first->paid.focus();
  else xh.focus();
}

void Formzctsf4::moveOnFrom(const kit::Member& member) {
  // With all lines ticked there is nothing left to type.
  if (&member == &allLines && allLines.on() && confirm.enabled()) confirm.invoke();
  else if (&member == &lines.back().paid && confirm.enabled()) confirm.focus();
  else Screen::moveOnFrom(member);
}

void Formzctsf4::switchMode() {
  fee_normal_mode = !arrearsMode.on();
  clearAll();
  loadStudent();
  loadLines();
  showMode();
  showAlready();
}

void Formzctsf4::showMode() {
  arrearsMode.setCaption(fee_normal_mode ? "加载欠费" : "正常收费");
  modeHeading.set(fee_normal_mode ? "正常收费" : "补交欠费");
  modeHeading.setColour(fee_normal_mode ? normalHeading : arrearsHeading);
}

void Formzctsf4::clearAll() {
  for (FeeLine& line : lines) line.clear();
  for (kit::Field* field : {&xh, &xm, &rxrq, &rxxs, &bjmc, &xq, &totalDue, &totalPaid, &difference, &already})
    field->clear();
  xtbh.clear();
}

void Formzctsf4::loadStudent() {
  store::RecordSet student = school::loadStudent(desk.store, current_xh);
  student_ = student.empty() ? 0 : student.mark();
  if (!student.empty()) {
    xh.set(student.get("xh").trimmed());
    xm.set(student.get("xm").trimmed());
    rxrq.set(student.get("rxrq").trimmed());
    rxxs.set(student.get("rxxs").trimmed());
    bjmc.set(student.get("bjmc").trimmed());
    xtbh = student.get("xtbh").trimmed();
    loaded_ = {xh.text(), xm.text(), bjmc.text()};
  }
  jfrq.set(desk.clock.today().plain());
  jffs.set("现金");
  xq.set(offeredTerm(desk.store, desk.clock.today()));
}

void Formzctsf4::loadLines() {
  const kit::Session& session = desk.session;
  const bool byClass = session.standard_basis_class;
  const StandardBasis basis{byClass, (byClass ? bjmc : rxxs).trimmed()};
  const auto total = !fee_normal_mode     ? loadArrears(desk.store, base::trim(current_xh), desk.clock.today(),
                                                        session.due_rows_ticked, lines)
                     : session.only_items ? loadStandards(desk.store, basis, lines)
                                          : loadAllItems(desk.store, basis, lines);
  if (total) totalDue.set(total->fixed2());
}

void Formzctsf4::wireLine(FeeLine& line) {
  line.tick.onChange([&line] { line.paid.set(line.tick.on() ? line.due.text() : ""); });
  line.paid.onChange([this, &line] { amountChanged(line); });
  line.paid.onLeave([this, &line] { completeAmount(line); });
  line.paid.onEnter([this, &line] {
    if (completeAmount(line)) moveOnFrom(line.paid);  // a refused amount keeps the focus
  });
}

void Formzctsf4::tickAll() {
  allLines.setCaption("全部移去");
  // Filled before emptied: a moment with nothing paid would untick the box again.
  for (FeeLine& line : lines) {
    if (line.due.blank()) continue;
    line.paid.set(line.dueAmount().fixed2());
    line.tick.set(true);
  }
  for (FeeLine& line : lines)
    if (line.due.blank()) line.paid.clear();
}

void Formzctsf4::untickAll() {
  allLines.setCaption("全部选择");
  for (FeeLine& line : lines) {
    line.paid.clear();
    line.tick.set(false);
  }
}

void Formzctsf4::amountChanged(FeeLine& line) {
  base::Money total;
  for (const FeeLine& one : lines) total += one.paidAmount();
  totalPaid.set(total.fixed2());
  confirm.enable(!total.zero());
  showDifference();
  if (std::all_of(lines.begin(), lines.end(), [](const FeeLine& one) { return one.paid.blank(); })) allLines.set(false);
  if (!line.paid.blank()) line.paid.setColour(line.paidAmount() > line.dueAmount() ? aboveDue : withinDue);
}

void Formzctsf4::showDifference() {
  const base::Money lacking = totalDue.money() - totalPaid.money();
  difference.set(totalPaid.money().zero() ? "" : lacking.fixed2());
  difference.setColour(lacking > base::Money() ? std::optional(shortColour) : std::nullopt);
}

// So that nobody pays twice unseen.
void Formzctsf4::showAlready() {
  already.set(student_ == 0 ? "" : paidAndOwed(desk.store, xh.trimmed(), xq.trimmed()));
}

// True when the amount can stand.
bool Formzctsf4::completeAmount(FeeLine& line) {
  if (kit::filledNotAmount(line.paid)()) {
    stop("金额应该是数字，请输入数字 ！    ", kit::wrongInput);
    line.paid.clear();
    line.paid.focus();
    return false;
  }
  // Arrears whose item was emptied can be paid: the row is known.
  const bool stands = line.hasItem() || line.owed.mark != 0;
  line.paid.set(stands && !line.paid.blank() ? line.paidAmount().fixed2() : "");
  return true;
}

}  // namespace collection
