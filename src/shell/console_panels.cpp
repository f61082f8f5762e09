// The console's overviews: opening, filling, and what their buttons do.
#include "arrears/arrears_delete.h"
#include "arrears/arrears_edit.h"
#include "arrears/arrears_entry.h"
#include "arrears/arrears_query.h"
#include "arrears/due_settings.h"
#include "arrears/waiver.h"
#include "base/text.h"
#include "collection/fee_window.h"
#include "collection/payment_edit.h"
#include "collection/payment_query.h"
#include "kit/notice.h"
#include "kit/rows.h"
#include "shell/console.h"
#include "shell/rights.h"
#include "students/student_query.h"
#include "students/student_view.h"

namespace shell {

using store::RecordSet;
using store::Sql;

void Formzct::wireOverviews() {
  timer1.onTick([this] { openPanel(); });
  timer4.onTick([this] { refillAfterQuery(); });

  for (Overview* overview : {&students_overview, &payments_overview, &arrears_overview})
    overview->button("返回").onPress([this] {
      closeOverviews();
      card.xh.focus();
    });
  students_overview.button("打开").onPress(
      [this] { refillLater(students_overview, open<students::Formzctxscx1>([this] { ready.clear(); })); });
  payments_overview.button("打开").onPress([this] { refillLater(payments_overview, open<collection::Formzctsf31>()); });
  arrears_overview.button("打开").onPress([this] { queryArrears(); });
  students_overview.button("添加").onPress([this] { editStudent(kit::Mode::Add); });
  students_overview.button("修改").onPress([this] { editStudent(kit::Mode::Modify); });
  students_overview.button("删除").onPress([this] { editStudent(kit::Mode::Delete); });
  students_overview.button("浏览").onPress([this] {
    if (students_overview.list.selected() < 0) return inform("前台无记录或您没有选中要浏览的学生！     ", "信息提示");
    open<students::Formzctxsll>(students_overview.list.mark());
  });
  payments_overview.list.setTip("双击选定记录修改");
  kit::Action& modifyPayment = payments_overview.button("修改");
  modifyPayment.onPress([this] { editPayment(kit::Mode::Modify); });
  payments_overview.button("删除").onPress([this] { editPayment(kit::Mode::Delete); });
  payments_overview.list.onDoubleClick([&modifyPayment] { modifyPayment.invoke(); });
  kit::Action& modifyArrears = arrears_overview.button("修改");
  modifyArrears.onPress([this] { editArrears(kit::Mode::Modify); });
  arrears_overview.button("删除").onPress([this] { editArrears(kit::Mode::Delete); });
  arrears_overview.list.onDoubleClick([&modifyArrears] { modifyArrears.invoke(); });
  cd91.onPress([this] { waiveInOverview(false); });
  cd92.onPress([this] { waiveInOverview(true); });
  arrears_overview.list.menu = arrearsOverviewPopUp();
  arrears_overview.button("导入").onPress([this] {
    open<arrears::Formqfcl2>();
    fillAgain(arrears_overview);
  });
  arrears_overview.button("添加").onPress([this] { addArrears(); });
}

Overview* Formzct::inFront() {
  for (Overview* overview : {&students_overview, &payments_overview, &arrears_overview})
    if (overview->frame.visible()) return overview;
  return nullptr;
}

void Formzct::openOverview(Overview& overview) {
  if (overview.frame.visible()) return;
  classes.frame.show(false);
  ConsolePanel = overview.plan.panel;
  timer1.start();
}

void Formzct::openPanel() {
  timer1.stop();
  if (ConsolePanel == kit::Panel::FeeWindow) {
    open<collection::Formzctsf4>(collection::FeeWindowFor{current_xh});
    ConsolePanel = kit::Panel::None;
    return redrawLists();
  }
  for (Overview* overview : {&students_overview, &payments_overview, &arrears_overview}) {
    if (overview->plan.panel != ConsolePanel) {
      overview->frame.show(false);
      continue;
    }
    overview->clear();
    overview->list.setWhenEmpty("按“打开”设置条件后显示");
    try {
      if (desk.session.auto_load_lists) fill(*overview);
    } catch (...) {  // the panel did not open: its button opens it again
      ConsolePanel = kit::Panel::None;
      throw;
    }
    overview->frame.show(true);
  }
}

Filled Formzct::fill(Overview& overview) {
  kit::Notice notice(desk.progress, "正在启动 ...");
  notice.show(overview.plan.notice);
  overview.list.setWhenEmpty(overview.filter.heading.empty() ? "暂无记录" : "没有符合条件的记录");
  if (&overview == &students_overview) return fillStudents(overview, desk, notice);
  if (&overview == &payments_overview) return fillPayments(overview, desk, notice);
  return fillArrears(overview, desk, notice);
}

void Formzct::refillLater(Overview& overview, std::optional<kit::Filter> answer) {
  if (!answer) return;
  overview.filter = std::move(*answer);
  asked_ = &overview;
  timer4.start();
}

// Arrears can be edited as soon as their list is chosen; the two computed lists cannot.
void Formzct::queryArrears() {
  auto answer = open<arrears::Formqfcl11>();
  if (!answer) return;
  arrears_overview.holds = answer->arrears_list_mode;
  enableWaivers();
  arrears_overview.enableByRights(desk);
  refillLater(arrears_overview, std::move(answer));
  if (arrears_overview.holds != reports::List::Arrears) refillAfterQuery();
}

// A row of a computed list is nobody's debt.
void Formzct::enableWaivers() {
  for (kit::Action* entry : {&cd91, &cd92})
    entry->enable(may(desk, WaiveArrears) && arrears_overview.holds == reports::List::Arrears);
}

void Formzct::refillAfterQuery() {
  timer4.stop();
  Overview* overview = std::exchange(asked_, nullptr);
  if (!overview || overview != inFront()) return;
  fill(*overview);
  if (overview == &students_overview) ready.set(overview->filter.heading.empty() ? "就绪" : overview->filter.heading);
  if (overview == &payments_overview && !overview->filter.heading.empty()) overview->bar.set(overview->filter.heading);
}

void Formzct::closeOverviews() {
  if (Overview* open = inFront()) {
    open->frame.show(false);
    open->clear();
    ready.set("就绪");
    if (open == &students_overview) stampKeyedRows("xs");
    if (open == &arrears_overview) stampKeyedRows("qfjl");
  }
  ConsolePanel = kit::Panel::None;
}

void Formzct::stampKeyedRows(const char* table) {
  // Rows keyed in the panel carry the computer's name until now, so that the list can show just them.
  kit::setEach(desk.store, Sql::table(table) + " where bsh='" + base::trim(desk.session.ComputerName) + "'", "bsh",
               desk.clock.now().plain());
}

// An edit goes back to the row that was worked on.
void Formzct::fillAgain(Overview& overview) {
  const std::int64_t worked = overview.list.mark();
  fill(overview);
  overview.list.selectMark(worked);
  if (&overview == &payments_overview && !overview.filter.heading.empty()) overview.bar.set(overview.filter.heading);
}

store::Sql Formzct::keyedHere() const { return Sql(" where bsh='") + base::trim(desk.session.ComputerName) + "'"; }

void Formzct::editStudent(kit::Mode mode) {
  if (mode != kit::Mode::Add && students_overview.list.selected() < 0) return;
  const kit::Editing editing{mode, students_overview.list.mark(), kit::Panel::Students};
  if (open<students::Formzctxs>(editing, collectFrom())) students_overview.filter = {keyedHere()};
  fillAgain(students_overview);
}

void Formzct::editPayment(kit::Mode mode) {
  if (payments_overview.list.mark() == 0) return;
  open<collection::Formzctsf1>(kit::Editing{mode, payments_overview.list.mark(), ConsolePanel});
  fillAgain(payments_overview);
}

void Formzct::addArrears() {
  RecordSet paid = rows("select * from jfjl order by fpbh");
  if (paid.empty()) return stop("您至少要通过收费前台录入一笔收费记录，才能在此添加欠费记录！   ", "操作提示");
  paid.last();
  const auto entered = open<arrears::Formqfcl>(
      arrears::ArrearsFor{.current_xq = paid.get("xq").trimmed(), .ConsolePanel = kit::Panel::Arrears});
  if (entered.added) arrears_overview.filter = {keyedHere()};
  fillAgain(arrears_overview);
}

void Formzct::editArrears(kit::Mode mode) {
  if (arrears_overview.list.selected() < 0) return;
  const kit::Editing selected{mode, arrears_overview.list.mark()};
  if (mode == kit::Mode::Modify) open<arrears::Formqf>(selected);
  else open<arrears::Formqfcl5>(selected);
  fillAgain(arrears_overview);
}

void Formzct::waiveInOverview(bool all) {
  const auto waive = all ? arrears::waiveAll : arrears::waiveOne;
  if (waive(desk, arrears_overview.list.mark(), arrears::WaivedFrom::Overview)) fillAgain(arrears_overview);
}

}  // namespace shell
