#include "arrears/arrears_entry.h"

#include <utility>

#include "base/text.h"
#include "kit/rows.h"
#include "register/settings.h"
#include "register/students.h"

namespace arrears {

using base::Date;
using base::Money;

constexpr int daysBetweenInstalments = 30;

InstalmentFields::InstalmentFields(kit::Screen& screen, const std::string& suffix)
    : date(screen, "bjrq" + suffix, "", kit::Entry::Date), amount(screen, "bjje" + suffix) {
  amount.rightAligned = true;
}

DebtLine::DebtLine(kit::Screen& screen, const std::string& suffix)
    : sfxm(screen, "sfxm" + suffix, "", kit::Entry::Pick),
      total(screen, "total" + suffix),
      instalments{InstalmentFields(screen, suffix + "0"), InstalmentFields(screen, suffix + "1"),
                  InstalmentFields(screen, suffix + "2")} {
  total.rightAligned = true;
}

double DebtLine::amount(std::size_t place) const { return base::leadingNumber(instalments[place].amount.text()); }

Formqfcl::Formqfcl(kit::Desk& all, ArrearsFor given)
    : Screen(all, "Formqfcl", "学生欠费信息编辑"), given_(std::move(given)) {
  xh.onEnter([this] { findByNumber(); });
  xm.onEnter([this] { findByName(); });
  xm.offers("select xm from xs group by xm", "xm");
  // A name is looked up by Enter; left in any other way it stays the name of the student whose number stands there.
  xm.onLeave([this] {
    if (!bjmc.blank()) xm.set(takenName_);
  });
  for (DebtLine& line : lines) wire(line);
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formqfcl::load() {
  const kit::Session& session = desk.session;
  xq.set(base::trim(given_.current_xq));
  if (!base::blank(given_.current_xh)) {
    store::RecordSet student = school::loadStudent(desk.store, given_.current_xh);
    if (!student.empty()) take(student);
  }
  const auto items = kit::columnTexts(desk.store, "select * from sfxmb order by sfxmbh", "sfxmmc");
  for (DebtLine& line : lines) line.sfxm.setChoices(items);
  school::loadReminderDays(desk);
  qfts.set(std::to_string(session.reminder_days));
  status.set(session.shortfall_opens_arrears ? "收费前台已设置为 [ " + session.arrears_item + " ] 差额自动加载！"
                                             : "收费前台未设置欠费差额自动加载，如果需要请您设置！");
  if (given_.from_fee_window && session.shortfall_opens_arrears) {
    loadShortfall();
    lines[0].instalments[1].amount.focus();
  } else {
    xh.focus();
  }
}

void Formqfcl::findByNumber() {
  if (xh.blank()) return stop("学号不能为空！     ", kit::wrongInput);
  store::RecordSet student = school::loadStudent(desk.store, xh.trimmed());
  if (student.empty()) return inform("检测不到该学号对应的相关记录，请检查学号输入是否正确！    ", "信息提示");
  take(student);
  lines[0].sfxm.focus();
}

void Formqfcl::findByName() {
  auto student = school::findByName(desk, xm.trimmed(), [this] { clearHead(); });
  if (!student) return;
  take(*student);
  lines[0].sfxm.focus();
}

void Formqfcl::take(store::RecordSet& student) {
  xh.set(student.get("xh").trimmed());
  xm.set(student.get("xm").trimmed());
  bjmc.set(student.get("bjmc").trimmed());
  xtbh = student.get("xtbh").trimmed();
  takenName_ = xm.text();
  given_.current_xh = xh.text();
}

void Formqfcl::clearHead() {
  for (kit::Field* field : {&xh, &xm, &bjmc}) field->clear();
  xtbh.clear();
}

void Formqfcl::wire(DebtLine& line) {
  // What the form works out by itself does not set the next sum off: the third amount takes from the second, and the
  // first stays as the operator saw it.
  const auto helps = [this, &line](kit::Field& field, void (Formqfcl::*help)(DebtLine&)) {
    field.onChange([this, &line, help] {
      if (std::exchange(line.sharing, true)) return;
      (this->*help)(line);
      line.sharing = false;
    });
  };
  helps(line.total, &Formqfcl::totalChanged);
  helps(line.instalments[1].amount, &Formqfcl::secondChanged);
  helps(line.instalments[2].amount, &Formqfcl::thirdChanged);
  const auto formats = [](kit::Field& field) {
    field.onLeave([&field] {
      if (const auto amount = Money::parse(field.trimmed())) field.set(amount->fixed2());
    });
  };
  formats(line.total);
  for (InstalmentFields& instalment : line.instalments) formats(instalment.amount);
}

void Formqfcl::totalChanged(DebtLine& line) {
  auto& [date, amount] = line.instalments[0];
  if (line.total.blank()) {
    date.clear();
    amount.clear();
    return;
  }
  if (date.blank()) date.set(desk.clock.today().plusDays(daysBetweenInstalments).plain());
  amount.set(line.total.text());
}

namespace {

void setNextDate(const kit::Field& before, kit::Field& date) {
  if (const auto earlier = Date::parse(before.trimmed())) date.set(earlier->plusDays(daysBetweenInstalments).plain());
}

}  // namespace

void Formqfcl::secondChanged(DebtLine& line) {
  if (line.total.blank()) return;
  auto& [first, second, third] = line.instalments;
  first.amount.set((Money::leading(line.total.text()) - Money::leading(second.amount.text())).fixed2());
  setNextDate(first.date, second.date);
}

void Formqfcl::thirdChanged(DebtLine& line) {
  if (line.total.blank()) return;
  auto& [first, second, third] = line.instalments;
  const Money rest = Money::leading(line.total.text()) - Money::leading(first.amount.text());
  second.amount.set((rest - Money::leading(third.amount.text())).fixed2());
  setNextDate(second.date, third.date);
}

// With an item named by the settings its line alone is owed; without one every line that was paid in part.
void Formqfcl::loadShortfall() {
  const std::string item = base::trim(desk.session.arrears_item);
  std::size_t next = 0;
  for (const ArrearsFor::FeeLine& paidLine : given_.fee_lines) {
    if (next == (item.empty() ? lines.size() : 1)) return;
    const bool meant = item.empty() ? paidLine.paid > Money() : paidLine.item == item;
    if (!meant || paidLine.due == paidLine.paid) continue;
    lines[next].sfxm.set(paidLine.item);
    lines[next].total.set((paidLine.due - paidLine.paid).fixed2());
    ++next;
  }
}

}  // namespace arrears
