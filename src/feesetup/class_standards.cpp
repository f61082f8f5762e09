#include "feesetup/class_standards.h"

#include "base/text.h"
#include "kit/rows.h"
#include "kit/validation.h"

namespace feesetup {

using store::Sql;

namespace {

// What the scopes differ in. The statements end where the selection's name goes in; all classes need none.
struct Scope {
  std::string prompt, listColumn;
  Sql list, replaced, classes;
  std::string nobody;  // told when no class is found; empty: nothing is told
};

const Scope& scopeOf(int chosen) {
  static const Scope scopes[] = {
      {"", "", {}, {}, "select * from bjzl order by bjdh", ""},
      {"请选择专业：", "zymc", "select * from zymcb order by zybh", "'and zymc='", "select * from bjzl where zymc='",
       "专业名称不存在或有误 ！  "},
      {"请选择班级：", "bjmc", "select * from bjzl order by bjdh", "'and bjmc='", "select * from bjzl where bjmc='",
       "班级名称不存在或有误 ！  "},
  };
  return scopes[chosen];
}

enum { allClasses = 0, oneMajor = 1 };

}  // namespace

Formszsfbz::Formszsfbz(kit::Desk& all, kit::Handler written)
    : Screen(all, "Formszsfbz", "收费标准设置"), written_(std::move(written)) {
  je.rightAligned = true;
  xq.offers("select xq from sfbzb group by xq order by xq", "xq");
  sfxmmc.offers("select * from sfxmb order by sfxmbh", "sfxmmc");
  sfxmmc.onPick([this] { pickItem(); });
  scope.onChange([this] { showScope(); });
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formszsfbz::load() {
  xq.set(base::defaultTerm(desk.clock.today()));
  showScope();
  sfxmmc.focus();
}

void Formszsfbz::pickItem() {
  sfxmbh.clear();
  auto item = rows(Sql("select * from sfxmb where sfxmmc='") + sfxmmc.trimmed() + "'");
  if (!item.empty()) sfxmbh.set(item.get("sfxmbh").trimmed());
  je.focus();
}

void Formszsfbz::showScope() {
  const Scope& now = scopeOf(scope.chosen());
  selection.clear();
  selection.setLabel(now.prompt);
  selection.show(scope.chosen() != allClasses);
  if (selection.visible()) selection.setChoices(kit::columnTexts(desk.store, now.list, now.listColumn));
}

bool Formszsfbz::valid() {
  kit::Field* empty = xq.blank() ? &xq : sfxmmc.blank() ? &sfxmmc : &je;
  return kit::holds(desk.person,
                    {{&xq, kit::longerThan(xq, 30), "学年学期不能大于30个字符 ！　　", kit::wrongInput},
                     {&sfxmmc, kit::longerThan(sfxmmc, 30), "班级代号不能大于30个字符 ！　　",
                      kit::wrongInput},  // known to operators so
                     {&selection, kit::longerThan(selection, 30), "班级名称不能大于30个字符 ！　　", kit::wrongInput},
                     {empty, [this] { return xq.blank() || sfxmmc.blank() || je.blank(); },
                      "学年学期、收费项目及收费金额不能为空 ！　　", kit::wrongInput},
                     {&selection, [this] { return scope.chosen() != allClasses && selection.blank(); },
                      "请选择一个专业或班级 ！　　", kit::wrongInput},
                     {&je, kit::notAmount(je), "收费金额应该是数字 ！     ", kit::wrongInput}});
}

// The screen stays open, so that several items can be set in a row.
void Formszsfbz::save() {
  if (!valid()) return;
  const Scope& now = scopeOf(scope.chosen());
  const bool all = scope.chosen() == allClasses;
  Sql replaced = Sql("select * from sfbzb where xq='") + xq.trimmed() + "' and sfxmmc='" + sfxmmc.trimmed();
  Sql classes = now.classes;
  if (!all) {
    replaced = replaced + now.replaced + selection.trimmed();
    classes = classes + selection.trimmed() + (scope.chosen() == oneMajor ? Sql("' order by bjdh") : Sql("'"));
  }
  replaced += "'";
  const bool stands = !rows(replaced).empty();
  if (stands && !ask("存在相同的收费信息！此操作将覆盖原信息，您确认继续吗？  ", "信息提示")) return;
  const long long written = write(replaced, stands, classes);
  if (written_) written_();
  if (written > 0) {
    inform("设置完成 ！       ", "信息提示");
    sfxmmc.focus();
  } else if (!now.nobody.empty()) {
    inform(now.nobody, "信息提示");
    selection.focus();
  }
}

// The number of classes that got the standard. What stood there before goes even when no class is found.
long long Formszsfbz::write(const Sql& replaced, bool mayReplace, const Sql& classes) {
  store::Unit unit(desk.store);
  if (!mayReplace && !rows(replaced).empty())
    throw store::StoreError(store::Fault::RowGone, "其他计算机刚设置了相同的收费信息，请再次点“确认”！");
  kit::removeEach(desk.store, replaced);
  auto standards = rows("select * from sfbzb");
  auto chosen = rows(classes);
  long long count = 0;
  store::forEach(chosen, [&](store::RecordSet& one) {
    kit::addRow(standards, {{"xq", xq.trimmed()},
                            {"zymc", one.get("zymc").trimmed()},
                            {"bjmc", one.get("bjmc").trimmed()},
                            {"sfxmbh", sfxmbh.trimmed()},
                            {"sfxmmc", sfxmmc.trimmed()},
                            {"je", je.money()},
                            {"bsh", desk.clock.now().plain()}});
    ++count;
  });
  unit.finish();
  return count;
}

}  // namespace feesetup
