#include "feesetup/class_edit.h"

#include "base/text.h"
#include "feesetup/class_name.h"
#include "kit/rows.h"

namespace feesetup {

using store::Sql;

Formszbjzl::Formszbjzl(kit::Desk& all) : EditScreen(all, "Formszbjzl", "班级资料编辑") {
  zymc.onPick([this] { proposeClass(); });
}

void Formszbjzl::load() {
  zymc.setChoices(kit::columnTexts(desk.store, "select * from zymcb", "zymc"));
  jsxm.setChoices(kit::columnTexts(desk.store, "select * from js order by gh", "jsxm"));
  EditScreen::load();
}

void Formszbjzl::remember() {
  zymc.enable(false);
  zybh_ = row().get("zybh").trimmed();
  oldName_ = bjmc.trimmed();
}

// The next free code of the major and the name that follows from it.
void Formszbjzl::proposeClass() {
  const std::string major = zymc.trimmed();
  auto classes = rows(Sql("select * from bjzl where zymc='") + major + "' order by bjdh");
  if (!classes.empty()) {
    classes.last();
    zybh_ = classes.get("zybh").trimmed();
    bjdh.set(base::nextNumber(classes.get("bjdh").trimmed()));
  } else {
    auto majors = rows(Sql("select * from zymcb where zymc='") + major + "'");
    if (majors.empty()) return;
    zybh_ = majors.get("zybh").trimmed();
    bjdh.set(zybh_ + "001");
  }
  bjmc.set(major + bjdh.text() + "班");
  bjmc.focus();
}

std::vector<kit::Rule> Formszbjzl::rules() {
  kit::Field* empty = zymc.blank() ? &zymc : bjdh.blank() ? &bjdh : &bjmc;
  return {{&zymc, kit::longerThan(zymc, 30), "专业名称不能大于30个字符 ！　　", "错误提示"},
          {&bjdh, kit::longerThan(bjdh, 10), "班级代号不能大于10个字符 ！　　", "错误提示"},
          {&bjmc, kit::longerThan(bjmc, 50), "班级名称不能大于50个字符 ！　　", "错误提示"},
          {&jsxm, kit::longerThan(jsxm, 20), "教师姓名不能大于20个字符 ！　　", "错误提示"},
          {empty, [this] { return zymc.blank() || bjdh.blank() || bjmc.blank(); },
           "专业名称、班级代号及班级名称三项不能为空 ！　　", "错误提示"},
          {&bjdh, kit::notNumeric(bjdh), "班级代号应该是数字 ！     ", "错误提示"}};
}

void Formszbjzl::write(store::RecordSet& target, const std::string& moment) {
  target.set("zybh", zybh_);
  target.set("zymc", zymc.trimmed());
  target.set("bjdh", bjdh.trimmed());
  target.set("bjmc", bjmc.trimmed());
  target.set("jsxm", jsxm.trimmed());
  target.set("bsh", moment);
  target.update();
}

void Formszbjzl::add() {
  auto same = rows(Sql("select * from bjzl where bjmc='") + bjmc.trimmed() + "'");
  if (!same.empty()) {
    inform("系统中已存在相同的班级名称 ！     ", "信息提示");
    return bjmc.focus();
  }
  const base::DateTime moment = desk.clock.now();
  same.addNew();
  write(same, moment.date.plain() + " " + moment.timeText());
  close();
}

void Formszbjzl::modify() {
  const bool renamed = bjmc.trimmed() != oldName_;
  if (!ask("您确认要修改记录吗？  ", "修改提示")) return;
  if (renamed && !askStop("班级名称被修改，这将修改系统中所有该班级的信息，您确认继续吗？   ", "警告")) return;
  store::Unit unit(desk.store);
  write(row(), now());
  if (renamed) renameClass(desk.store, oldName_, bjmc.trimmed());
  unit.finish();
  inform("选定记录已修改 ！     ", "信息提示");
  close();
}

void Formszbjzl::remove() {
  if (!askStop("您确认要删除选定的班级记录吗？   ", "警告")) return;
  if (!askStop("删除班级将同时删除与该班级有关的所有记录，包括学籍资料、交费记录等，您确认继续吗？    ", "再次警告"))
    return;
  store::Unit unit(desk.store);
  row().remove();
  deleteClassRows(desk.store, oldName_);
  unit.finish();
  inform("选定记录已删除 ！     ", "信息提示");
  close();
}

}  // namespace feesetup
