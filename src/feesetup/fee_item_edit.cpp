#include "feesetup/fee_item_edit.h"

#include "base/text.h"
#include "kit/rows.h"

namespace feesetup {

using kit::Mode;
using store::Sql;

// Payments, arrears and standards keep the name of an item that is deleted.
Formszsfxm::Formszsfxm(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formszsfxm", "收费项目名称编辑", "sfxmb", editing) {}

void Formszsfxm::propose() {
  sfxmmc.focus();
  auto items = rows("select * from sfxmb");
  if (items.empty()) return sfxmbh.set("101");
  items.last();
  sfxmbh.set(base::nextNumber(items.get("sfxmbh").trimmed()));
}

std::vector<kit::Rule> Formszsfxm::rules() {
  return {{&sfxmbh, [this] { return base::length(sfxmbh.trimmed()) != 3; },
           "收费项目编号为3个字符,您让它默认就可以 ！　　", kit::wrongInput},
          {&sfxmmc, kit::longerThan(sfxmmc, 30), "收费项目名称不能大于30个字符 ！　　", kit::wrongInput},
          {&sfxmmc, [this] { return sfxmbh.blank() || sfxmmc.blank(); }, "收费项目编号与收费项目名称均不能为空 ！　　",
           kit::wrongInput},
          {&sfxmbh, kit::notNumeric(sfxmbh), "请输入数字 ！     ", kit::wrongInput},
          noQuote(sfxmmc)};
}

std::vector<kit::Rule> Formszsfxm::guards() {
  if (EditMode != Mode::Add) return {};
  const auto stands = [this] {
    return !rows(Sql("select * from sfxmb where sfxmmc='") + sfxmmc.trimmed() + "'").empty();
  };
  return {{&sfxmmc, stands, "系统中已存在相同的收费项目名称 ！     ", "信息提示", kit::Box::Information}};
}

kit::RecordEdit::Words Formszsfxm::words() {
  return {.modify = {{"您确认要修改记录吗？  "}},
          .remove = {{"您确认要删除选定记录吗？   ", "删除提示"}},
          .modified = "选定记录已修改 ！     ",
          .removed = "选定记录已删除 ！     "};
}

void Formszsfxm::modify() {
  if (!agreed(words().modify)) return;
  // A No to the new name writes nothing, and is told like a Yes.
  if (changed(sfxmmc) &&
      !ask("收费项目名称已被修改，这将修改系统中的所有该项目！   \n修改中请不要做其它操作！ ", "修改提示"))
    return done(words().modified);
  save();
}

// A new name and a new code in one step do not swap codes: the name goes first, the order is a step of its own.
void Formszsfxm::modifying(store::RecordSet&) {
  if (changed(sfxmmc)) {
    // The standards by enrolment form and the setting qfjz keep the old name: they are set again by hand when they are
    // meant to follow.
    const std::string name = sfxmmc.trimmed();
    kit::setEach(desk.store, Sql("select * from sfbzb where sfxmmc='") + former(sfxmmc) + "'", "sfxmmc", name);
    kit::setEach(desk.store, Sql("select * from jfjl where sfxm='") + former(sfxmmc) + "'", "sfxm", name);
    kit::setEach(desk.store, Sql("select * from qfjl where sfxm='") + former(sfxmmc) + "'", "sfxm", name);
  } else if (changed(sfxmbh)) {
    // Takes the code of another item by giving it the old one: the codes are the order of the fee lines.
    auto other = rows(Sql("select * from sfxmb where sfxmbh='") + sfxmbh.trimmed() + "'");
    if (!other.empty()) kit::writeRow(other, {{"sfxmbh", former(sfxmbh)}});
  }
}

}  // namespace feesetup
