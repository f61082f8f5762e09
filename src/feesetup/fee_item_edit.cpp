#include "feesetup/fee_item_edit.h"

#include "base/text.h"
#include "kit/rows.h"

namespace feesetup {

using store::Sql;

Formszsfxm::Formszsfxm(kit::Desk& all) : EditScreen(all, "Formszsfxm", "收费项目名称编辑") {}

void Formszsfxm::propose() {
  sfxmmc.focus();
  auto items = rows("select * from sfxmb");
  if (items.empty()) return sfxmbh.set("101");
  items.last();
  sfxmbh.set(base::nextNumber(items.get("sfxmbh").trimmed()));
}

void Formszsfxm::remember() {
  oldCode_ = sfxmbh.trimmed();
  oldName_ = sfxmmc.trimmed();
}

std::vector<kit::Rule> Formszsfxm::rules() {
  return {{&sfxmbh, [this] { return base::length(sfxmbh.trimmed()) != 3; },
           "收费项目编号为3个字符,您让它默认就可以 ！　　", "错误提示"},
          {&sfxmmc, kit::longerThan(sfxmmc, 30), "收费项目名称不能大于30个字符 ！　　", "错误提示"},
          {&sfxmmc, [this] { return sfxmbh.blank() || sfxmmc.blank(); }, "收费项目编号与收费项目名称均不能为空 ！　　",
           "错误提示"},
          {&sfxmbh, kit::notNumeric(sfxmbh), "请输入数字 ！     ", "错误提示"}};
}

void Formszsfxm::add() {
  auto same = rows(Sql("select * from sfxmb where sfxmmc='") + sfxmmc.trimmed() + "'");
  if (!same.empty()) {
    inform("系统中已存在相同的收费项目名称 ！     ", "信息提示");
    return sfxmmc.focus();
  }
  same.addNew();
  same.set("sfxmbh", sfxmbh.trimmed());
  same.set("sfxmmc", sfxmmc.trimmed());
  same.set("bsh", now());
  same.update();
  close();
}

void Formszsfxm::modify() {
  if (!ask("您确认要修改记录吗？  ", "修改提示")) return;
  if (sfxmmc.trimmed() != oldName_) {
    // A new name and a new code in one step do not swap codes: the name goes first, the order is a step of its own.
    if (ask("收费项目名称已被修改，这将修改系统中的所有该项目！   \n修改中请不要做其它操作！ ", "修改提示")) rename();
  } else if (sfxmbh.trimmed() != oldCode_) {
    reorder();
  }
  close();
  inform("选定记录已修改 ！     ", "信息提示");
}

void Formszsfxm::write() {
  row().set("sfxmbh", sfxmbh.trimmed());
  row().set("sfxmmc", sfxmmc.trimmed());
  row().update();
}

// The standards by enrolment form and the setting qfjz keep the old name: they are set again by hand when they are
// meant to follow.
void Formszsfxm::rename() {
  const std::string name = sfxmmc.trimmed();
  store::Unit unit(desk.store);
  write();
  kit::setEach(desk.store, Sql("select * from sfbzb where sfxmmc='") + oldName_ + "'", "sfxmmc", name);
  kit::setEach(desk.store, Sql("select * from jfjl where sfxm='") + oldName_ + "'", "sfxm", name);
  kit::setEach(desk.store, Sql("select * from qfjl where sfxm='") + oldName_ + "'", "sfxm", name);
  unit.finish();
}

// Takes the code of another item by giving it the old one: the codes are the order of the fee lines.
void Formszsfxm::reorder() {
  store::Unit unit(desk.store);
  auto other = rows(Sql("select * from sfxmb where sfxmbh='") + sfxmbh.trimmed() + "'");
  if (!other.empty()) {
    other.set("sfxmbh", oldCode_);
    other.update();
  }
  write();
  unit.finish();
}

void Formszsfxm::remove() {
  if (!ask("您确认要删除选定记录吗？   ", "删除提示")) return;
  row().remove();  // payments, arrears and standards keep the name of the item
  close();
  inform("选定记录已删除 ！     ", "信息提示");
}

}  // namespace feesetup
