#include "feesetup/setup.h"

#include "feesetup/class_edit.h"
#include "feesetup/class_standard_change.h"
#include "feesetup/class_standard_delete.h"
#include "feesetup/class_standards.h"
#include "feesetup/enrolment_form_edit.h"
#include "feesetup/fee_item_edit.h"
#include "feesetup/form_standard_delete.h"
#include "feesetup/form_standards.h"
#include "feesetup/major_edit.h"
#include "kit/rows.h"
#include "kit/settings.h"

namespace feesetup {

using kit::Format;
using kit::ListColumn;
using kit::Mode;
using store::Sql;

namespace {

const std::vector<ListColumn> majorColumns{
    {"序号", "id", Format::Text, 6}, {"专业代号", "zybh", Format::Text, 10}, {"专业名称", "zymc", Format::Text, 30}};
const std::vector<ListColumn> classColumns{{"专业名称", "zymc", Format::Text, 14},
                                           {"班级代号", "bjdh", Format::Text, 9},
                                           {"班级名称", "bjmc", Format::Text, 22},
                                           {"教师姓名", "jsxm", Format::Text, 10}};
const std::vector<ListColumn> itemColumns{{"收费项目编号", "sfxmbh", Format::Text, 10},
                                          {"收费项目名称", "sfxmmc", Format::Text, 30}};
const std::vector<ListColumn> classStandardColumns{
    {"学年学期", "xq", Format::Text, 11},     {"专业名称", "zymc", Format::Text, 11},
    {"班级名称", "bjmc", Format::Text, 16},   {"收费项目编号", "sfxmbh", Format::Text, 7},
    {"收费项目", "sfxmmc", Format::Text, 10}, {"收费金额", "je", Format::Money, 7}};
const std::vector<ListColumn> formStandardColumns{{"学年学期", "xq", Format::Text, 14},
                                                  {"入学形式", "rxxs", Format::Text, 18},
                                                  {"收费项目", "sfxmmc", Format::Text, 18},
                                                  {"收费标准", "je", Format::Money, 10}};
const std::vector<ListColumn> bandColumns{{"课程类别", "fl", Format::Text, 12},
                                          {"考试科目", "kskm", Format::Text, 18},
                                          {"标准成绩", "bzcj", Format::Text, 8},
                                          {"考试成绩", "kscj", Format::Text, 8},
                                          {"平时成绩", "pscj", Format::Text, 8}};
const std::vector<ListColumn> logColumns{{"用户姓名", "yhxm", Format::Text, 12},
                                         {"计算机名", "jsjmc", Format::Text, 14},
                                         {"开始时间", "kjsj", Format::Text, 15},
                                         {"结束时间", "gjsj", Format::Text, 15}};
const std::vector<ListColumn> formColumns{{"入学形式", "rxxs", Format::Text, 30}};

}  // namespace

Formsz::Formsz(kit::Desk& all)
    : Screen(all, "Formsz", "系统初始设置"),
      majors(*this, desk.store, "zymcb", majorColumns),
      classes(*this, desk.store, "bjzl", classColumns),
      items(*this, desk.store, "sfxmb", itemColumns),
      sfbzb(*this, "sfbzb", desk.store, classStandardColumns),
      sfbzbrxxs(*this, "sfbzbrxxs", desk.store, formStandardColumns),
      bands(*this, desk.store, "cjsz", bandColumns),
      czjl(*this, "czjl", desk.store, logColumns),
      forms(*this, desk.store, "rxxs", formColumns) {
  wire<Formszzymc>(majors);
  wire<Formszbjzl>(classes);
  wire<Formszsfxm>(items);
  wire<Formszrxxs>(forms);
  wireStandards();
  for (kit::Action* action : {&bands.add, &bands.modify, &bands.remove})
    action->onPress([this] { notYet("考试成绩分段设置"); });
  clearLog.onPress([this] { emptyLog(); });
  back.onPress([this] { close(); });
}

template <class Editor> void Formsz::wire(SetupTab& tab) {
  tab.add.onPress([this] { openEditor<Editor>(Mode::Add, nullptr); });
  tab.modify.onPress([this, &tab] { openAtRow<Editor>(tab.grid, Mode::Modify); });
  tab.remove.onPress([this, &tab] { openAtRow<Editor>(tab.grid, Mode::Delete); });
}

void Formsz::wireStandards() {
  basis.onChange([this] { chooseBasis(); });
  filter.onDrop([this] { fillFilter(); });
  filter.onPick([this] { showStandards(); });
  setStandards.onPress(
      [this] { byClass() ? openEditor<Formszsfbz>(Mode::Add, nullptr) : openEditor<Formszsfbz3>(Mode::Add, nullptr); });
  modifyStandards.onPress([this] {
    byClass() ? openAtRow<Formszsfbz2>(sfbzb, Mode::Modify) : openAtRow<Formszsfbz3>(sfbzbrxxs, Mode::Modify);
  });
  removeStandards.onPress([this] {
    byClass() ? openAtRow<Formszsfbz1>(sfbzb, Mode::Delete) : openAtRow<Formszsfbz4>(sfbzbrxxs, Mode::Delete);
  });
  refresh.onPress([this] {
    filter.clear();
    showStandards();
  });
  for (kit::Grid* grid : {&sfbzb, &sfbzbrxxs}) grid->onDoubleClick([this] { modifyStandards.invoke(); });
}

void Formsz::load() {
  majors.grid.open("select * from zymcb order by zybh");
  classes.grid.open("select * from bjzl order by bjdh");
  items.grid.open("select * from sfxmb order by sfxmbh");
  bands.grid.open("select * from cjsz");
  czjl.open("select * from czjl order by kjsj desc");
  forms.grid.open("select * from rxxs");
  kit::loadStandardBasis(desk);
  basis.set(desk.session.standard_basis_class ? 0 : 1);
  showStandards();
}

template <class Editor> void Formsz::openAtRow(kit::Grid& grid, Mode mode) {
  if (grid.count() == 0)
    return inform(mode == Mode::Modify ? "不存在需要修改的记录！  " : "不存在需要删除的记录！  ", "信息提示");
  store::RecordSet* row = grid.current();
  row ? openEditor<Editor>(mode, row) : grid.reload();
}

template <class Editor> void Formsz::openEditor(Mode mode, store::RecordSet* row) {
  desk.session.EditMode = mode;
  desk.session.edited = row;
  desk.session.standard_filter = filter.trimmed();
  open<Editor>();
  desk.session.edited = nullptr;
  reload();
}

// All grids, not only the one in front: a renamed major, class or item shows in several.
void Formsz::reload() {
  for (kit::Grid* grid : {&majors.grid, &classes.grid, &items.grid, &forms.grid}) grid->reload();
  if (desk.session.standard_filter == filter.trimmed()) return standards().reload();
  filter.set(desk.session.standard_filter);
  showStandards();
}

void Formsz::chooseBasis() {
  filter.clear();
  showStandards();
  if (byClass() == desk.session.standard_basis_class) return;
  kit::storeSetting(desk, "bjsf1", byClass());
  desk.session.standard_basis_class = byClass();  // also without a record to write it to
}

void Formsz::fillFilter() {
  filter.setChoices(byClass() ? kit::columnTexts(desk.store, "select * from bjzl order by bjdh", "bjmc")
                              : kit::columnTexts(desk.store, "select * from rxxs", "rxxs"));
}

void Formsz::showStandards() {
  const std::string entry = filter.trimmed();
  if (byClass())
    sfbzb.open(entry.empty() ? Sql("select * from sfbzb order by bjmc")
                             : Sql("select * from sfbzb where bjmc='") + entry + "' order by sfxmbh");
  else
    sfbzbrxxs.open(entry.empty() ? Sql("select * from sfbzbrxxs")
                                 : Sql("select * from sfbzbrxxs where rxxs='") + entry + "'");
  sfbzb.show(byClass());
  sfbzbrxxs.show(!byClass());
}

void Formsz::emptyLog() {
  if (czjl.rows().empty()) return inform("不存在需要清空的记录！  ", "信息提示");
  if (!ask("您确认是要清空操作记录吗？        ", "警告")) return;
  kit::removeEach(desk.store, "select * from czjl order by kjsj desc");
  czjl.reload();
}

}  // namespace feesetup
