// The console's student in hand: finding one, the card, the payments, the arrears, and what is done from those lists.
#include "arrears/waiver.h"
#include "base/text.h"
#include "collection/fee_window.h"
#include "collection/payment_deletion.h"
#include "collection/receipt_print.h"
#include "kit/rows.h"
#include "register/settings.h"
#include "register/students.h"
#include "shell/console.h"
#include "shell/payment_summary.h"
#include "shell/rights.h"
#include "students/student_card.h"

namespace shell {

using store::RecordSet;
using store::Sql;

void Formzct::wireFront() {
  card.xh.onEnter([this] { findByNumber(); });
  card.xm.onEnter([this] { findByName(); });
  card.xm.onPick([this] { findByName(); });
  card.xm.onChange([this] { titleFrames(); });
  card.xm.names = true;
  card.xm.onDrop([this] { card.xm.setChoices(kit::columnTexts(desk.store, "select xm from xs group by xm", "xm")); });
  for (kit::Field* field : {&card.xh, &card.xm}) field->onClick([this] { clearCard(); });

  payments.list.menu = paymentsPopUp();
  arrears.list.menu = arrearsPopUp();
  cd59.onPress([this] { refreshCard(); });
  cd54.onPress([this] { showPayments(); });
  cd55.onPress([this] { payments.showNew(current_xh); });
  cd56.onPress([this] { reprint(); });
  cd571.onPress([this] { deletePayments(false); });
  cd572.onPress([this] { deletePayments(true); });
  cd50.onPress([this] { openFeeWindowFor(payments.list, "jfjl"); });
  cd66.onPress([this] { openFeeWindowFor(arrears.list, "qfjl"); });
  cd64.onPress([this] { showArrears(); });
  arrears.back.onPress([this] { showArrears(); });
  for (kit::Action* entry : {&cd63, &arrears.due}) entry->onPress([this] { showDueArrears(); });
  cd61.onPress([this] { waiveOnCard(false); });
  cd62.onPress([this] { waiveOnCard(true); });
  cd510.onPress([this] { summarise(payments.list, "jfjl"); });
  arrears.list.onDoubleClick([this] { summarise(arrears.list, "qfjl"); });

  class_strip.onPress([this] {
    if (inFront()) return;
    ConsolePanel = kit::Panel::None;
    if (arrears.holdsDue()) showArrears();
    classes.frame.show(!classes.frame.visible());
  });
  classes.students.onDoubleClick([this] { pickFromClass(); });
  classes.opensFeeWindow.onChange([this] {
    const bool on = classes.opensFeeWindow.on();
    if (std::exchange(desk.session.open_fee_window, on) != on) school::storeSetting(desk, "sfctsz", on ? 1 : 0);
  });
}

void Formzct::findByNumber() {
  if (!may(desk, Collect)) return;
  const std::string number = card.xh.trimmed();
  if (number.empty()) {
    clearCard();
    return stop("学号不能为空，请输入正确的学号！    ", "操作错误");
  }
  if (!base::isNumeric(number)) {
    clearCard();
    stop("学号应该是数字，请重新输入！    ", kit::wrongInput);
    return card.xh.focus();
  }
  found(number, "找不到相关记录，请检查学号输入是否正确！    ");
}

void Formzct::findByName() {
  if (!may(desk, Collect)) return;
  const std::string name = card.xm.trimmed();
  if (name.empty()) return stop("姓名不能为空 ！    ", "操作错误");
  auto student = school::findByName(desk, name, [this] { clearCard(); });
  if (student) found(student->get("xh").trimmed(), "找不到相关记录，请检查姓名输入是否正确！    ");
}

void Formzct::found(const std::string& xh, const std::string& notFoundText) {
  current_xh = xh;
  showStudent();
  classes.frame.show(false);
  card.xh.focus();  // the next number replaces this one
  if (!desk.session.open_fee_window) return;
  if (!card.holdsStudent()) return inform(notFoundText, "信息提示");
  openFeeWindow();
}

void Formzct::titleFrames() {
  const std::string name = card.xm.trimmed();
  card.frame.setTitle(name.empty() ? "学籍资料信息" : name + "同学学籍资料信息");
  payments.frame.setTitle(name.empty() ? "学生交费记录" : name + "同学交费记录");
  if (!arrears.holdsDue()) arrears.frame.setTitle(name.empty() ? "学生欠费记录" : name + "同学欠费记录");
}

void Formzct::clearCard() {
  card.clear();
  payments.clear();
  leaveDueArrears();
  enablePaymentEntries();
  enableArrearsEntries(true);
}

void Formzct::enablePaymentEntries() {
  const bool collects = may(desk, Collect);
  cd59.enable(collects);
  for (kit::Action* entry : {&cd50, &cd54, &cd55, &cd56, &cd510}) entry->enable(collects);
  for (kit::Action* entry : {&cd571, &cd572}) entry->enable(collects && may(desk, DeleteUnsubmitted));
}

void Formzct::enableArrearsEntries(bool listed) {
  const bool collects = may(desk, Collect);
  cd64.enable(collects);
  for (kit::Action* entry : {&cd63, &cd66}) entry->enable(listed && collects);
  for (kit::Action* entry : {&cd61, &cd62}) entry->enable(listed && collects && may(desk, WaiveArrears));
}

void Formzct::showStudent() {
  const auto student = students::readStudentCard(desk.store, current_xh);
  if (!student) return clearCard();
  card.show(*student);
  redrawLists();
}

void Formzct::redrawLists() {
  showPayments();
  showArrears();
}

void Formzct::showPayments() {
  payments.showAll(base::trim(current_xh), card.xm.trimmed());
  enablePaymentEntries();
}

void Formzct::leaveDueArrears() {
  const bool grown = arrears.holdsDue();
  arrears.clear();
  if (!grown) return;
  payments.frame.show(true);
  titleFrames();
}

void Formzct::showArrears() {
  leaveDueArrears();
  if (!card.holdsStudent()) return enableArrearsEntries(true);
  arrears.show(base::trim(current_xh));
  enableArrearsEntries(arrears.list.count() > 0);
}

void Formzct::showDueArrears() {
  if (!may(desk, Collect)) return inform("只有收款人或超级管理员可以进行此操作！     ", "信息提示");
  payments.frame.show(false);  // the frame grows over them
  arrears.showDue();
  enableArrearsEntries(arrears.list.count() > 0);
}

void Formzct::waiveOnCard(bool all) {
  const auto waive = all ? arrears::waiveAll : arrears::waiveOne;
  if (waive(desk, arrears.list.mark(), arrears::WaivedFrom::Card)) showArrears();
}

void Formzct::refreshCard() {
  const std::string xh = current_xh;
  clearCard();
  if (!xh.empty()) showStudent();
}

// The way from a new student to the fee window.
students::Formzctxs::Collect Formzct::collectFrom() {
  return [this](const std::string& xh) { open<collection::Formzctsf4>(collection::FeeWindowFor{xh}); };
}

void Formzct::openFeeWindow() {
  open<collection::Formzctsf4>(collection::FeeWindowFor{current_xh});
  redrawLists();
  card.xh.focus();
}

// The row that is selected, as it stands now. One that has gone meanwhile is told, and the lists are read again.
std::optional<RecordSet> Formzct::selectedRow(const kit::List& list, const char* table) {
  if (list.mark() == 0) return std::nullopt;
  RecordSet row = rows(Sql::table(table));
  if (row.goTo(list.mark())) return row;
  arrears.holdsDue() ? showDueArrears() : redrawLists();
  inform("选定的记录已被其他计算机删除，列表已重新加载。", "信息提示");
  return std::nullopt;
}

void Formzct::openFeeWindowFor(kit::List& list, const char* table) {
  if (list.count() == 0) return inform("只有当表中有记录时，才能调用收费窗口！    ", "操作提示");
  auto row = selectedRow(list, table);
  if (!row) return;
  current_xh = row->get("xh").trimmed();
  open<collection::Formzctsf4>(collection::FeeWindowFor{current_xh});
  showStudent();
  card.xh.focus();
}

void Formzct::summarise(kit::List& list, const char* table) {
  if (auto row = selectedRow(list, table)) open<Formzct1>(row->get("xh").trimmed());
}

void Formzct::pickFromClass() {
  if (!may(desk, Collect)) return warn("您不能进行收费操作 ！      ", "信息提示");
  current_xh = classes.students.key();
  showStudent();
  classes.frame.show(false);
  card.xh.focus();
  if (!desk.session.open_fee_window) return;
  ConsolePanel = kit::Panel::FeeWindow;
  timer1.start();
}

void Formzct::reprint() {
  auto row = selectedRow(payments.list, "jfjl");
  if (!row) return;
  const std::string receipt = row->get("fpbh").trimmed();
  const long long count = rows(Sql("select * from jfjl where fpbh='") + receipt + "'").count();
  if (!ask("您要重新打印的这组记录共有" + base::caption(count) + "条，确认继续吗？    ", "打印提示")) return;
  open<collection::Formzctsf5>(collection::reprintOf(*row, desk.session));
}

void Formzct::deletePayments(bool wholeReceipt) {
  if (payments.list.mark() == 0) return;
  using collection::PaymentDeletion;
  PaymentDeletion deletion(desk.store, payments.list.mark(),
                           wholeReceipt ? PaymentDeletion::Scope::Receipt : PaymentDeletion::Scope::Payment,
                           desk.session.SessionUser);
  if (const auto reason = deletion.refused()) return inform(*reason, "信息提示");
  if (!askStop("您确认是要删除选定记录吗？      ", "警告")) return;
  const auto reason = deletion.carryOut();
  inform(reason.value_or("选定记录已删除！       "), "信息提示");
  if (payments.payment_list_mode == PaymentList::New) {
    payments.clear();
    payments.showNew(current_xh);
  } else {
    showPayments();
  }
}

}  // namespace shell
