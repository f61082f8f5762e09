#include "feesetup/form_standards.h"

#include <algorithm>

#include "kit/rows.h"

namespace feesetup {

using store::Sql;

StandardLine::StandardLine(kit::Screen& screen, std::size_t number)
    : place(screen, "place" + std::to_string(number), "", kit::Entry::Shown),
      sfxmmc(screen, "sfxmmc" + std::to_string(number), "", kit::Entry::Pick),
      je(screen, "je" + std::to_string(number)) {
  place.set(std::to_string(number));
  je.rightAligned = true;
}

void StandardLine::clear() {
  sfxmmc.clear();
  je.clear();
}

Formszsfbz3::Formszsfbz3(kit::Desk& all, const kit::Editing& editing, kit::Handler written)
    : Screen(all, "Formszsfbz3", "收费标准设置"),
      modifies_(editing.EditMode == kit::Mode::Modify),
      written_(std::move(written)) {
  for (StandardLine& line : lines) {
    line.sfxmmc.onChange([&line] {
      if (line.sfxmmc.blank()) line.je.clear();
    });
    line.sfxmmc.onPick([&line] { line.je.focus(); });
    // Enter on an empty line: the lines are done.
    line.sfxmmc.onEnter([this, &line] { line.sfxmmc.blank() ? confirm.focus() : line.je.focus(); });
  }
  xq.offers("select xq from sfbzbrxxs group by xq order by xq", "xq");
  rxxs.offers("select * from rxxs", "rxxs");
  rxxs.onPick([this] { loadForm(); });
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formszsfbz3::load() {
  xq.set(base::defaultTerm(desk.clock.today()));
  const auto items = kit::columnTexts(desk.store, "select * from sfxmb order by sfxmbh", "sfxmmc");
  for (StandardLine& line : lines) line.sfxmmc.setChoices(items);
  rxxs.focus();
}

// What stands for the form; rows beyond the eleventh have no line and go when the form is saved.
void Formszsfbz3::loadForm() {
  if (!modifies_) return;
  for (StandardLine& line : lines) line.clear();
  auto standards = rows(Sql("select * from sfbzbrxxs where rxxs='") + rxxs.trimmed() + "'");
  if (standards.empty()) {
    inform("不存在需要修改的记录 ！　　", "信息提示");
    return rxxs.clear();
  }
  shown_ = standing();
  for (StandardLine& line : lines) {
    if (standards.atEnd()) break;
    line.sfxmmc.set(standards.get("sfxmmc").trimmed());
    line.je.set(standards.get("je").money().fixed2());
    standards.next();
  }
}

std::string Formszsfbz3::standing() {
  std::string all;
  auto standards = rows(Sql("select * from sfbzbrxxs where rxxs='") + rxxs.trimmed() + "'");
  store::forEach(standards, [&](store::RecordSet& row) {
    for (const char* column : {"xq", "sfxmmc", "je"}) all += row.get(column).trimmed() + "\n";
  });
  return all;
}

std::vector<kit::Rule> Formszsfbz3::rules() {
  const auto noAmount = [this] { return std::ranges::all_of(lines, [](auto& line) { return line.je.blank(); }); };
  std::vector<kit::Rule> all{{&xq, kit::longerThan(xq, 30), "学年学期不能大于30个字符 ！　　", kit::wrongInput},
                             {&rxxs, kit::longerThan(rxxs, 50), "入学形式不能大于50个字符 ！　　", kit::wrongInput},
                             {xq.blank() ? &xq : &rxxs, [this] { return xq.blank() || rxxs.blank(); },
                              "学年学期及入学形式均不能为空 ！　　", kit::wrongInput},
                             {&lines.front().je, noAmount, "收费标准至少您需要设置一个以上 ！　　", kit::wrongInput}};
  for (StandardLine& line : lines) {
    all.push_back({&line.je, kit::filledNotAmount(line.je), "收费标准应该是数字 ！     ", kit::wrongInput});
    all.push_back({&line.sfxmmc, [&line] { return !line.je.blank() && line.sfxmmc.blank(); },
                   "第" + line.place.text() + "项没有定义收费项目！      ", kit::wrongInput});
  }
  return all;
}

void Formszsfbz3::save() {
  if (!kit::holds(desk.person, rules())) return;
  if (modifies_ && !ask("此操作将覆盖原有的记录,您确认继续吗？    ", "操作提示")) return;
  write();
  if (written_) written_();
  inform(modifies_ ? "收费标准修改成功 ！      " : "收费标准设置成功！      ", "信息提示");
  rxxs.focus();
}

// Rows come back in the order in which they are stored, so the lines are the order of the fee window.
void Formszsfbz3::write() {
  store::Unit unit(desk.store);
  if (modifies_ && standing() != shown_) throw kit::changedMeanwhile(rxxs.trimmed() + "的收费标准");
  kit::removeEach(desk.store, Sql("select * from sfbzbrxxs where rxxs='") + rxxs.trimmed() + "'");
  auto standards = rows("select * from sfbzbrxxs");
  for (const StandardLine& line : lines) {
    if (line.je.blank()) continue;
    kit::addRow(standards, {{"xq", xq.trimmed()},
                            {"rxxs", rxxs.trimmed()},
                            {"sfxmbh", ""},
                            {"sfxmmc", line.sfxmmc.trimmed()},
                            {"je", line.je.money()},
                            {"bsh", desk.clock.now().plain()}});
  }
  auto written = standing();
  unit.finish();
  shown_ = std::move(written);
}

}  // namespace feesetup
