#include "shell/console.h"

#include "base/text.h"
#include "collection/batch_window.h"
#include "collection/fee_window.h"
#include "collection/submission.h"
#include "feesetup/desk_settings.h"
#include "feesetup/setup.h"
#include "register/settings.h"
#include "reports/export.h"
#include "reports/income_statement.h"
#include "reports/print_options.h"
#include "shell/about.h"
#include "shell/rights.h"
#include "staff/teacher_list.h"
#include "students/class_transfer_window.h"
#include "students/suspension_list.h"
#include "upkeep/clearing.h"
#include "upkeep/password_change.h"
#include "upkeep/school_name.h"
#include "upkeep/user_list.h"
#include "upkeep/user_rights.h"

namespace shell {

using reports::exportList;
using reports::List;
using store::RecordSet;
using store::Sql;

Formzct::Formzct(kit::Desk& all) : Screen(all, "Formzct", ""), ConsoleMenu(static_cast<kit::Screen&>(*this)) {
  wireMenu();
  wireToolbar();
  wireFront();
  wireOverviews();
  wireStatistics();
  timer2.ticksBehindScreens = true;
  timer2.onTick([this] {
    showToday();
    attempt([this] {  // a fault must not end what goes on in front
      sharing.sayAlive();
      sharing.refresh();
    });
  });
}

void Formzct::load() {
  kit::enableByRights(desk, {{cd11, {Income}},
                             {cd121, {Recommendation}},
                             {cd21, {SystemSettings}},
                             {cd14, {ClassTransfer}},
                             {cd31, {Users}},
                             {cd33, {GrantRights}},
                             {cd35, {Users}},
                             {cd34, {Initialise}},
                             {cd91, {WaiveArrears}},
                             {cd92, {WaiveArrears}},
                             {class_strip, {Collect}}});
  for (Overview* overview : {&students_overview, &payments_overview, &arrears_overview}) overview->enableByRights(desk);
  ready.set("就绪");
  user.set("当前用户：" + desk.session.SessionUser + " 级别：" + desk.session.SessionLevel);
  showToday();
  showSchool();
  timer2.start();
  card.xh.focus();
  clearCard();
  loadAllSettings();  // from here on the store is read: whatever it says, the console stands
  classes.fillTree();
  payments.guide(classes.tree.nodes().empty());
  sharing.refresh();
}

void Formzct::showSchool() { setTitle(desk.session.SchoolName + "综合管理系统 收费前台"); }

void Formzct::showToday() { third.set("今天是 " + desk.clock.today().chinese()); }

void Formzct::wireMenu() {
  const auto opens = [](kit::Action& entry, auto open) { entry.onPress(open); };
  opens(cd11, [this] { open<reports::Formkh1>(); });
  opens(cd13, [this] { leaveProgram(); });
  opens(cd14, [this] { open<students::Formtb>(); });
  opens(cd21, [this] {
    open<feesetup::Formsz>();
    classes.fillTree();
    if (!card.holdsStudent()) payments.guide(classes.tree.nodes().empty());
  });
  opens(cd22, [this] { openOverview(students_overview); });
  opens(cd23, [this] { openOverview(payments_overview); });
  opens(cd24, [this] { openOverview(arrears_overview); });
  opens(cd31, [this] { open<upkeep::Formyhxx>(); });
  opens(cd32, [this] { open<upkeep::Formyhxx3>(); });
  opens(cd33, [this] { open<upkeep::Formyhxx1>(); });
  opens(cd34, [this] { open<upkeep::Formcsh3>(); });
  opens(cd35, [this] {
    open<upkeep::Formxxmc>();
    showSchool();
  });
  opens(cd43, [this] { open<Formcsh2>(); });
  opens(cd72, [this] { open<students::Formxxfk3>(); });
  opens(cd73, [this] { open<staff::Formjs3>(); });
  for (kit::Action* entry : {&cd121, &cd77, &cd70, &cd75, &cd71, &cd76, &cd74, &cd41, &cd42, &cd44})
    entry->onPress([this, entry] { notYet(entry->caption()); });
}

void Formzct::wireToolbar() {
  k2.onPress([this] { openOverview(students_overview); });
  k3.onPress([this] { openOverview(payments_overview); });
  k4.onPress([this] { openOverview(arrears_overview); });
  k10.onPress([this] { leaveProgram(); });
  k1.onPress([this] {
    if (!may(desk, Collect)) return;
    open<feesetup::Formszqt>();
    loadAllSettings();
  });
  k5.onPress([this] {
    if (!may(desk, NewStudent)) return;
    closeOverviews();
    if (auto added = open<students::Formzctxs>(kit::Editing{}, collectFrom())) current_xh = std::move(*added);
    showStudent();
    card.xh.focus();
  });
  k20.onPress([this] {
    if (!may(desk, Collect)) return refuse(desk);
    refreshCard();
    open<collection::Formzctsf7>();
    if (card.holdsStudent()) redrawLists();
    card.xh.focus();
  });
  k6.onPress([this] {
    if (!may(desk, Collect)) return refuse(desk);
    closeOverviews();
    open<collection::Formzctsf9>();
    if (card.holdsStudent()) redrawLists();
    card.xh.focus();
  });
  k11.onPress([this] {
    if (!may(desk, Collect)) return refuse(desk);
    refreshCard();
    if (rows(Sql("select * from zsgl2 where xh='") + card.xh.trimmed() + "'").count() > 0)
      return inform("该生是住校生！若您要调整该生宿舍或床位请后台操作！      ", "信息提示");
    if (current_xh.empty()) return inform("前台无学生信息时不能进行此操作！   ", "操作提示");
    notYet(k11.caption());
  });
  // One chain over the three panels, not tied to the one in front: to reach panel 3 a user needs the rights of 1 and 2,
  // and one with the first right alone gets the action and then the refusal.
  const auto chain = [this](kit::Action& button, std::array<int, 3> rights, std::function<void(kit::Panel)> act) {
    button.onPress([this, &button, rights, act] {
      const kit::Panel before = ConsolePanel;
      for (int panel = 1; panel <= 3; ++panel) {
        if (!may(desk, rights[static_cast<std::size_t>(panel - 1)])) return refuse(desk);
        if (ConsolePanel == static_cast<kit::Panel>(panel)) act(ConsolePanel);
      }
      if (before == kit::Panel::None)
        desk.person.say("请先打开“学籍资料”、“交费记录”或“欠费应交”，再按“" + button.caption() + "”");
    });
  };
  chain(k7, {StudentQuery, PaymentQuery, ArrearsQuery}, [this](kit::Panel panel) {
    if (panel == kit::Panel::Students) open<reports::Formzctxsdy>(students_overview.filter.where);
    if (panel == kit::Panel::Payments) open<reports::Formzctjfjldy>(payments_overview.filter.where);
    if (panel == kit::Panel::Arrears)
      open<reports::Formzctqfjldy>(arrears_overview.filter.where, arrears_overview.holds);
  });
  chain(k8, {StudentQuery, PaymentQuery, ArrearsQuery}, [this](kit::Panel panel) {
    const Overview& of = panel == kit::Panel::Students   ? students_overview
                         : panel == kit::Panel::Payments ? payments_overview
                                                         : arrears_overview;
    exportList(desk, of.holds, of.filter.where);
  });
  chain(k9, {StudentClear, PaymentClear, ArrearsClear}, [this](kit::Panel panel) { clearPanel(panel); });
}

void Formzct::loadAllSettings() {
  if (!school::loadSettings(desk)) return;
  classes.opensFeeWindow.set(desk.session.open_fee_window);
}

void Formzct::leaveProgram() {
  if (mayClose()) close();
}

bool Formzct::escaped() {
  if (Overview* overview = inFront()) overview->button("返回").invoke();
  else if (classes.frame.visible()) class_strip.invoke();
  else if (arrears.holdsDue()) showArrears();
  card.xh.focus();
  return true;
}

// Once the person has said yes the program ends: what fails on the way out is told and passed over.
bool Formzct::mayClose() {
  if (!ask("您确认是要退出本系统吗？   \n选择“是”将关闭本窗口\n或者选择“否”撤消此操作！                     ",
           "确认退出"))
    return false;
  attempt([this] { closeLogRow(); });
  attempt([this] { restoreDisplay(); });
  attempt([this] { offerBackup(); });
  return true;
}

void Formzct::closeLogRow() {
  RecordSet session = sharing.ownRow();
  if (session.empty()) return;
  session.set("gjsj", desk.clock.now().plain());
  session.update();
}

void Formzct::restoreDisplay() {
  const auto file = desk.desktop.deskFolder() / "Screen.txt";
  const int width = static_cast<int>(base::leadingNumber(platform::readFile(file)));
  desk.session.ScreenWidth = width;
  struct Mode {
    int wide, high;
  };
  constexpr Mode modes[] = {{800, 600}, {960, 600}, {1152, 864}, {1280, 800}};
  // Any other width, the wide screens of today among them, asks for 1024 by 768: the mode the office's old screens
  // kept.
  Mode mode{1024, 768};
  for (const Mode& known : modes)
    if (known.wide == width) mode = known;
  if (width != 1024) desk.desktop.SetDisplayMode(mode.wide, mode.high, 32, 75);
}

void Formzct::offerBackup() {
  const auto program = desk.desktop.programFolder() / "备份数据库.exe";
  if (ask("退出之前是否备份数据库？        ", "备份提示") && !desk.desktop.startProgram(program))
    warn("备份程序未能启动，请联系管理员检查备份程序是否已安装。", "备份提示");
}

}  // namespace shell
