#include "students/suspension_edit.h"

#include "kit/rows.h"

namespace students {

using kit::Mode;
using store::RecordSet;
using store::Sql;

Formxxfk1::Formxxfk1(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formxxfk1", "学生休学复课记录编辑", "xxfk", editing) {
  const bool adds = EditMode == Mode::Add;
  what.set(adds ? 0 : 1);
  what.enable(false);
  if (!adds) day.setLabel("复课日期");
  bjmc.offers("select * from bjzl order by bjdh", "bjmc");
  xm.offers([this] { return Sql("select * from xs where bjmc='") + bjmc.trimmed() + "'"; }, "xm");
  if (!adds) return;
  bjmc.onChange([this] { xm.clear(); });
  xm.onChange([this] { findStudent(); });
}

std::vector<kit::RecordEdit::Bound> Formxxfk1::bound() {
  return {{bjmc, 18}, {xm, 18}, {xh, 0}, {day, 0, kit::Format::Date, EditMode == Mode::Add ? "xxsj" : "fksj"}};
}

void Formxxfk1::propose() {
  day.set(desk.clock.today().plain());
  bjmc.focus();
}

// The day that is to be deleted is the row's own; a resumption is of today.
void Formxxfk1::shown(RecordSet&) {
  if (EditMode != Mode::Modify) return;
  for (kit::Field* copied : {&bjmc, &xm}) copied->enable(false);
  day.set(desk.clock.today().plain());
}

Sql Formxxfk1::chosen() const {
  return Sql("select * from xs where xm='") + xm.trimmed() + "' and bjmc='" + bjmc.trimmed() + "'";
}

void Formxxfk1::findStudent() {
  xh.clear();
  xtbh_.clear();
  student_ = 0;
  if (xm.blank()) return;
  RecordSet student = rows(chosen());
  if (student.empty()) return;
  xh.set(student.get("xh").trimmed());
  xtbh_ = student.get("xtbh").trimmed();
  student_ = student.mark();
}

std::vector<kit::Rule> Formxxfk1::rules() {
  if (EditMode == Mode::Delete) return {};
  // A row without a student could be found by nobody again.
  const auto nobody = [this] { return EditMode == Mode::Add && xh.blank(); };
  return {{&xm, nobody, "请先选择班级，再选择该班级中的学生！     ", "操作提示"},
          {&day, kit::notDate(day), "日期格式不正确，应该是 yyyy-m-d 格式！   ", kit::wrongInput}};
}

std::vector<kit::Rule> Formxxfk1::guards() {
  if (EditMode != Mode::Add) return {};
  const auto changed = [this] {
    if (!kit::standsStill(desk.store, "xs", student_)) return true;
    RecordSet student = kit::rowAt(desk.store, "xs", student_);
    return student.get("xh").trimmed() != xh.text() || student.get("xm").trimmed() != xm.trimmed() ||
           student.get("bjmc").trimmed() != bjmc.trimmed();
  };
  return {{&xm, changed, "该生学籍资料已被其他计算机修改，没有保存，请重新选择学生！     ", "操作提示"}};
}

kit::RecordEdit::Words Formxxfk1::words() {
  return {.remove = {{"您确认是要删除记录吗？      ", "警告"}}, .removed = "记录已删除 ！        "};
}

// A student who is suspended already gets another row: each suspension is one.
void Formxxfk1::adding(RecordSet& row) {
  row.set("xtbh", xtbh_);
  row.set("fksj", "");  // not Null: who has no day of return is asked for with ''
  row.set("bsh", now());
}

}  // namespace students
