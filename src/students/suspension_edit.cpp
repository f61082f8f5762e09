#include "students/suspension_edit.h"

#include "kit/rows.h"
#include "kit/validation.h"

namespace students {

using kit::Mode;
using store::RecordSet;
using store::Sql;

Formxxfk1::Formxxfk1(kit::Desk& all) : Screen(all, "Formxxfk1", "学生休学复课记录编辑") {
  what.onChange([this] { day.setLabel(resuming() ? "复课日期" : "休学日期"); });
  bjmc.onDrop([this] { bjmc.setChoices(kit::columnTexts(desk.store, "select * from bjzl order by bjdh", "bjmc")); });
  bjmc.onChange([this] {
    xm.clear();
    fillNames();
  });
  xm.onChange([this] { findStudent(); });
  confirm.onPress([this] { act(); });
  cancel.onPress([this] { close(); });
}

void Formxxfk1::load() {
  mode_ = desk.session.EditMode;
  day.set(desk.clock.today().plain());
  what.enable(false);
  if (mode_ == Mode::Add) return bjmc.focus();
  what.set(1);
  bjmc.set(row().get("bjmc").trimmed());
  xm.set(row().get("xm").trimmed());
  xh.set(row().get("xh").trimmed());
  for (kit::Field* copied : {&bjmc, &xm}) copied->enable(false);
  day.enable(mode_ == Mode::Modify);
  if (mode_ == Mode::Delete) confirm.focus();
}

RecordSet& Formxxfk1::row() {
  if (!desk.session.edited)
    throw store::StoreError(store::Fault::RowGone, "没有选定的记录，请先在列表中选定一条记录！");
  return *desk.session.edited;
}

void Formxxfk1::fillNames() {
  const Sql names = resuming() ? Sql("select xm from xxfk where bjmc='") + bjmc.trimmed() + "' group by xm"
                               : Sql("select * from xs where bjmc='") + bjmc.trimmed() + "'";
  xm.setChoices(kit::columnTexts(desk.store, names, "xm"));
}

void Formxxfk1::findStudent() {
  xh.clear();
  xtbh_.clear();
  if (mode_ != Mode::Add || xm.blank()) return;
  RecordSet student = rows(Sql("select * from xs where xm='") + xm.trimmed() + "' and bjmc='" + bjmc.trimmed() + "'");
  if (student.empty()) return;
  xh.set(student.get("xh").trimmed());
  xtbh_ = student.get("xtbh").trimmed();
}

void Formxxfk1::act() {
  if (mode_ == Mode::Delete) return remove();
  // A row without a student could be found by nobody again.
  const auto nobody = [this] { return mode_ == Mode::Add && xh.blank(); };
  if (!kit::holds(desk.person, {{&xm, nobody, "请先选择班级，再选择该班级中的学生！     ", "操作提示"},
                                {&day, kit::notDate(day), "日期格式不正确，应该是 yyyy-m-d 格式！   ", "错误提示"}}))
    return;
  mode_ == Mode::Add ? add() : setResumed();
}

// A student who is suspended already gets another row: each suspension is one.
void Formxxfk1::add() {
  RecordSet all = rows("select * from xxfk");
  all.addNew();
  all.set("xh", xh.trimmed());
  all.set("xtbh", xtbh_);
  all.set("xm", xm.trimmed());
  all.set("bjmc", bjmc.trimmed());
  all.set("xxsj", *base::Date::parse(day.trimmed()));
  all.set("fksj", "");
  all.set("bsh", desk.clock.now().plain());
  all.update();
  close();
}

void Formxxfk1::setResumed() {
  row().set("fksj", *base::Date::parse(day.trimmed()));
  row().update();
  close();
}

void Formxxfk1::remove() {
  if (!ask("您确认是要删除记录吗？      ", "警告")) return;
  row().remove();
  close();
  inform("记录已删除 ！        ", "信息提示");
}

}  // namespace students
