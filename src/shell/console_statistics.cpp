// The statistics bars of the overviews, and the rows behind a line of them.
#include "base/text.h"
#include "shell/console.h"

namespace shell {

using store::RecordSet;
using store::Sql;

void Formzct::wireStatistics() {
  timer3.onTick([this] {
    timer3.stop();
    if (Overview* overview = inFront()) {
      const kit::Notice notice(desk.progress, overview->plan.statistics.notice);
      overview->statistics.fill(desk);
      overview->zoom.setTip("点击还原统计信息栏");
    }
  });
  for (Overview* overview : {&students_overview, &payments_overview, &arrears_overview}) {
    overview->zoom.setTip("点击放大统计信息栏");
    overview->zoom.onPress([this, overview] { zoom(*overview); });
  }
  students_overview.statistics.first.onDoubleClick([this] { showStudentsOfClass(); });

  StatisticsBar& taken = payments_overview.statistics;
  taken.first.onDoubleClick([this, &list = taken.first] {
    showUnsubmittedOf(Sql(" where sfxm='") + list.key() + "' and sftj<>'*' order by fpbh",
                      "前台未提交" + list.key() + "记录共：");
  });
  taken.second.onDoubleClick([this, &list = taken.second] {
    showUnsubmittedOf(Sql(" where skr='") + list.key() + "' and sftj<>'*' order by fpbh",
                      "前台收款人" + list.key() + "经办记录总数共：");
  });
  for (kit::List* list : {&taken.first, &taken.second}) list->menu = {&a11};
  a11.onPress([this] { closeStatistics(payments_overview); });

  StatisticsBar& owed = arrears_overview.statistics;
  owed.first.onDoubleClick([this] { showArrearsOfClass(); });
  owed.second.onDoubleClick([this] { showMonthOfClass(); });
  for (kit::List* list : {&owed.first, &owed.second}) list->menu = {&cd82};
  cd82.onPress([this] {
    closeStatistics(arrears_overview);
    fill(arrears_overview);
  });
}

void Formzct::zoom(Overview& overview) {
  if (overview.statistics.frame.visible()) return closeStatistics(overview);
  timer3.start();
}

void Formzct::closeStatistics(Overview& overview) {
  overview.statistics.close();
  overview.zoom.setTip("点击放大统计信息栏");
}

void Formzct::showStudentsOfClass() {
  const std::string name = students_overview.statistics.first.key();
  students_overview.filter = {Sql(" where bjmc='") + name + "' order by xh"};
  const Filled filled = fill(students_overview);
  students_overview.bar.set("在校生人数：" + base::caption(filled.count) + " 人，其中男生：" +
                            base::caption(filled.men) + " 人，女生：" + base::caption(filled.count - filled.men) +
                            " 人！");
}

void Formzct::showUnsubmittedOf(const Sql& where, const std::string& what) {
  if (rows(Sql("select * from jfjl ") + where).empty())
    return inform("前台没有该收费项目的未提交记录！    ", "信息提示");
  payments_overview.filter = {where};
  const Filled filled = fill(payments_overview);
  closeStatistics(payments_overview);
  payments_overview.bar.set(what + base::caption(filled.count) + " 笔，未提交金额：" + filled.paid.fixed2() + " 元 ！");
}

// Real arrears again, also after a computed list.
Filled Formzct::showArrears(const Sql& where) {
  arrears_overview.filter = {where};
  arrears_overview.holds = reports::List::Arrears;
  arrears_overview.enableByRights(desk);
  enableWaivers();
  return fill(arrears_overview);
}

void Formzct::showArrearsOfClass() {
  const std::string name = arrears_overview.statistics.first.key();
  const Filled filled = showArrears(Sql(" where bjmc='") + name + "'and sbjje<bjje and clfs<>'减免'");
  arrears_overview.bar.set("记录个数：" + base::caption(filled.count) + " 条，欠费总额：" +
                           (filled.due - filled.paid).fixed2() + " 元 ！");
}

void Formzct::showMonthOfClass() {
  const std::string name = arrears_overview.statistics.second.key();
  const Filled filled =
      showArrears(Sql(" where bjmc='") + name + "' and month(bjrq)='" + std::to_string(desk.clock.today().month) + "'");
  arrears_overview.bar.set("本月欠费记录个数：" + base::caption(filled.count) + " 条，欠费总额：" +
                           filled.due.fixed2() + " 元；已收回欠费：" + (filled.paid - filled.waived).fixed2() +
                           " 元；减免欠费：" + filled.waived.fixed2() + " 元；还有 " +
                           (filled.due - filled.paid).fixed2() + " 元欠费需要催收！");
}

}  // namespace shell
