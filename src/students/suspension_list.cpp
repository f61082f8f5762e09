#include "students/suspension_list.h"

#include "base/text.h"
#include "kit/rights.h"
#include "reports/export.h"
#include "reports/print.h"
#include "students/suspension_edit.h"
#include "students/suspension_query.h"

namespace students {

using kit::Format;
using kit::Mode;
using store::Sql;

void Formxxfk3::proceed() {
  close();  // the list stands as long as it is worked with; the notice must not
  open<Formxxfk>();
}

Formxxfk::Formxxfk(kit::Desk& all)
    : Screen(all, "Formxxfk", "学生休学复课管理前台"),
      suspensions(*this, "suspensions", desk.store,
                  {{"学号", "xh", Format::Text, 11},
                   {"学生姓名", "xm", Format::Text, 8},
                   {"院校班级", "bjmc", Format::Text, 20},
                   {"休学日期", "xxsj", Format::Date, 8},
                   {"复课日期", "fksj", Format::Date, 8}}) {
  add.onPress([this] { edit(Mode::Add, nullptr); });
  resume.onPress([this] { editSelected(Mode::Modify, "不存在需要复课的休学记录！  "); });
  remove.onPress([this] { editSelected(Mode::Delete, "不存在需要删除的记录！  "); });
  query.onPress([this] { chooseFilter(); });
  print.onPress([this] { printAll(); });
  toSheet.onPress([this] { reports::exportList(desk, reports::List::Suspensions, filter_.where); });
  clearAll.onPress([this] { empty(); });
  back.onPress([this] { close(); });
}

void Formxxfk::load() {
  // Any operator of the desk may enter a suspension.
  resume.enable(kit::may(desk, kit::Resume));
  remove.enable(kit::may(desk, kit::SuspensionDelete));
  clearAll.enable(kit::may(desk, kit::SuspensionClear));
  for (kit::Action* one : {&query, &print, &toSheet}) one->enable(kit::may(desk, kit::SuspensionQuery));
  filter_ = {};
  suspensions.open("select * from xxfk order by xh");
  showCount();
}

void Formxxfk::showCount() {
  count.set((filter_.where.empty() ? "记录个数：" : "记录个数:") + base::caption(suspensions.count()));
}

void Formxxfk::editSelected(Mode mode, const std::string& none) {
  if (suspensions.count() == 0) return inform(none, "信息提示");
  store::RecordSet* row = suspensions.current();
  row ? edit(mode, row) : suspensions.reload();
}

void Formxxfk::edit(Mode mode, store::RecordSet* row) {
  desk.session.EditMode = mode;
  desk.session.edited = row;
  open<Formxxfk1>();
  desk.session.edited = nullptr;
  suspensions.reload();
  showCount();
}

void Formxxfk::chooseFilter() {
  auto answer = open<Formxxfk2>();
  if (!answer) return;
  filter_ = std::move(*answer);
  suspensions.open(Sql("select * from xxfk") + filter_.where);
  showCount();
}

void Formxxfk::printAll() {
  const auto fill = [this] {
    return reports::refill(desk, "dy_xxfk", Sql("select * from xxfk ") + filter_.where, reports::columnsOf("dy_xxfk"));
  };
  reports::printList(
      desk, fill, "bbdy_xxfk",
      {"要打印休学复课记录吗？请确认打印机连接正常、打印纸准备就绪！ ", "不存在能够打印的休学复课记录！   "});
}

// All rows, whatever the list is filtered by. The second question ends with the choice, where others begin with it.
void Formxxfk::empty() {
  if (!askStop("您确认是要清空系统中所有的休学复课记录吗？   ", "警告")) return;
  if (!askStop("休学复课记录清空后不可恢复！您确认继续吗？    \n\n选择“是”继续；否则，点“否”撤销此操作！   ",
               "再次警告"))
    return;
  store::RecordSet all = rows("select * from xxfk");
  if (all.empty()) return inform("不存在需要清空的记录！  ", "信息提示");
  all.removeAll();
  suspensions.reload();
  showCount();
  inform("休学复课记录已全部清空 ！        ", "信息提示");
}

}  // namespace students
