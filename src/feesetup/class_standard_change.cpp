#include "feesetup/class_standard_change.h"

#include "base/text.h"
#include "kit/rows.h"
#include "kit/validation.h"

namespace feesetup {

using store::Sql;

Formszsfbz2::Formszsfbz2(kit::Desk& all, std::int64_t row, Sql shown)
    : Screen(all, "Formszsfbz2", "收费标准信息修改"), row_(row), shown_(std::move(shown)) {
  caution.set("（如非必须，请不要修改它）");
  what.onChange([this] { show(); });
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formszsfbz2::load() {
  if (kit::standsStill(desk.store, "sfbzb", row_)) {
    store::RecordSet row = kit::rowAt(desk.store, "sfbzb", row_);
    term_ = row.get("xq").trimmed();
    item_ = row.get("sfxmmc").trimmed();
    amount_ = row.get("je").trimmed();
  }
  show();
}

void Formszsfbz2::show() {
  const bool term = changesTerm();
  before.setLabel(term ? "原学年学期" : "收费项目");
  before.set(term ? term_ : item_);
  after.setLabel(term ? "新学年学期" : "收费金额");
  after.set(term ? base::defaultTerm(desk.clock.today()) : amount_);
  caution.show(term);
  all.set(term);
  all.enable(!term);
  after.focus();
}

void Formszsfbz2::save() {
  if (changesTerm()) return saveTerm();
  if (all.on()) return saveAmounts();
  saveAmount();
}

void Formszsfbz2::saveAmount() {
  const auto amount = [this] { return after.money(); };
  if (!kit::holds(desk.person, {{&after, kit::notAmount(after), "收费金额应为数字！   ", kit::wrongInput},
                                {&after, [&] { return amount().zero(); },
                                 "收费额为零时，您完全可以删除该条记录，使用时再设置！   ", "操作提示"}}))
    return;
  store::Unit unit(desk.store);
  store::RecordSet row = kit::rowAt(desk.store, "sfbzb", row_);
  if (row.get("sfxmmc").trimmed() != item_ || row.get("je").trimmed() != amount_)
    throw kit::changedMeanwhile(after.label());
  kit::writeRow(row, {{"je", amount()}});
  unit.finish();
  done("选定记录已修改！     ");
}

// Every class and every term, with the amount as it stands: zero is let through here, and a text counts as zero.
void Formszsfbz2::saveAmounts() {
  kit::setEach(desk.store, Sql("select * from sfbzb where sfxmmc='") + item_ + "'", "je", after.money());
  done("记录批修改成功！     ");
}

// The rows that the grid shows: with a class picked in its filter, the rows of that class alone.
void Formszsfbz2::saveTerm() {
  if (!kit::holds(desk.person, {{&after, kit::blank(after), "新的学年学期不能为空！     ", kit::wrongInput}})) return;
  if (!ask("此操作将修改系统中所有收费项目的学年学期信息，您确认继续吗？   ", "批修改提示")) return;
  kit::setEach(desk.store, shown_, "xq", after.trimmed());
  done("记录批修改成功！     ");
}

void Formszsfbz2::done(const std::string& text) {
  close();
  inform(text, "信息提示");
}

}  // namespace feesetup
