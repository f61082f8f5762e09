#include "feesetup/setup.h"

#include <algorithm>

#include "feesetup/class_edit.h"
#include "feesetup/class_standard_change.h"
#include "feesetup/class_standards.h"
#include "feesetup/enrolment_form_edit.h"
#include "feesetup/fee_item_edit.h"
#include "feesetup/form_standards.h"
#include "feesetup/major_edit.h"
#include "feesetup/standard_delete.h"
#include "kit/rows.h"
#include "register/settings.h"

namespace feesetup {

using kit::Editing;
using kit::Format;
using kit::ListColumn;
using kit::Mode;
using store::Sql;

namespace {

kit::RecordDeskPlan tab(const char* table, const Sql& order, std::vector<ListColumn> columns,
                        const char* addCaption = "添加") {
  return {.table = table,
          .name = table,
          .order = order,
          .columns = std::move(columns),
          .buttons = {{"add", addCaption, "plus", Mode::Add},
                      {"modify", "修改", "pencil", Mode::Modify, "不存在需要修改的记录！  "},
                      {"remove", "删除", "trash-2", Mode::Delete, "不存在需要删除的记录！  "}}};
}

const kit::RecordDeskPlan majorsPlan = tab(
    "zymcb", " order by zybh",
    {{"序号", "id", Format::Text, 6}, {"专业代号", "zybh", Format::Text, 10}, {"专业名称", "zymc", Format::Text, 30}});
const kit::RecordDeskPlan classesPlan = tab("bjzl", " order by bjdh",
                                            {{"专业名称", "zymc", Format::Text, 14},
                                             {"班级代号", "bjdh", Format::Text, 9},
                                             {"班级名称", "bjmc", Format::Text, 22},
                                             {"教师姓名", "jsxm", Format::Text, 10}});
const kit::RecordDeskPlan itemsPlan =
    tab("sfxmb", " order by sfxmbh",
        {{"收费项目编号", "sfxmbh", Format::Text, 10}, {"收费项目名称", "sfxmmc", Format::Text, 30}});
const kit::RecordDeskPlan classStandardsPlan = tab("sfbzb", " order by bjmc",
                                                   {{"学年学期", "xq", Format::Text, 11},
                                                    {"专业名称", "zymc", Format::Text, 11},
                                                    {"班级名称", "bjmc", Format::Text, 16},
                                                    {"收费项目编号", "sfxmbh", Format::Text, 7},
                                                    {"收费项目", "sfxmmc", Format::Text, 10},
                                                    {"收费金额", "je", Format::Money, 7}},
                                                   "设置");
const kit::RecordDeskPlan formStandardsPlan = tab("sfbzbrxxs", {},
                                                  {{"学年学期", "xq", Format::Text, 14},
                                                   {"入学形式", "rxxs", Format::Text, 18},
                                                   {"收费项目", "sfxmmc", Format::Text, 18},
                                                   {"收费标准", "je", Format::Money, 10}},
                                                  "设置");
const kit::RecordDeskPlan bandsPlan = tab("cjsz", {},
                                          {{"课程类别", "fl", Format::Text, 12},
                                           {"考试科目", "kskm", Format::Text, 18},
                                           {"标准成绩", "bzcj", Format::Text, 8},
                                           {"考试成绩", "kscj", Format::Text, 8},
                                           {"平时成绩", "pscj", Format::Text, 8}});
const kit::RecordDeskPlan formsPlan = tab("rxxs", {}, {{"入学形式", "rxxs", Format::Text, 30}});
const std::vector<ListColumn> logColumns{{"用户姓名", "yhxm", Format::Text, 12},
                                         {"计算机名", "jsjmc", Format::Text, 14},
                                         {"开始时间", "kjsj", Format::Text, 15},
                                         {"结束时间", "gjsj", Format::Text, 15}};

}  // namespace

Formsz::Formsz(kit::Desk& all)
    : Screen(all, "Formsz", "系统初始设置"),
      majors(*this, desk, majorsPlan, "zymcb_"),
      classes(*this, desk, classesPlan, "bjzl_"),
      items(*this, desk, itemsPlan, "sfxmb_"),
      classStandards(*this, desk, classStandardsPlan, "sfbzb_"),
      formStandards(*this, desk, formStandardsPlan, "sfbzbrxxs_"),
      bands(*this, desk, bandsPlan, "cjsz_"),
      czjl(*this, "czjl", desk.store, logColumns),
      forms(*this, desk, formsPlan, "rxxs_") {
  majors.editedIn<Formszzymc>();
  classes.editedIn<Formszbjzl>();
  items.editedIn<Formszsfxm>();
  forms.editedIn<Formszrxxs>();
  bands.editedBy([this](const Editing&) { notYet("考试成绩分段设置"); });
  wireStandards();
  for (kit::RecordDesk* one : {&majors, &classes, &items, &classStandards, &formStandards, &forms})
    one->onEdited([this] { readAgain(); });
  clearLog.onPress([this] { emptyLog(); });
  back.onPress([this] { close(); });
}

void Formsz::wireStandards() {
  basis.onChange([this] { chooseBasis(); });
  filter.onDrop([this] { filter.setChoices(filterEntries()); });
  filter.onPick([this] { showStandards(); });
  refresh.onPress([this] {
    filter.clear();
    showStandards();
  });
  const auto written = [this] { standards().reload(); };
  const auto emptyFilter = [this](bool asked) {
    if (!asked) return;
    filter.clear();
    showStandards();
  };
  classStandards.editedBy([this, written, emptyFilter](const Editing& editing) {
    switch (editing.EditMode) {
      case Mode::Add: return open<Formszsfbz>(written);
      case Mode::Modify: return open<Formszsfbz2>(editing.row, classStandards.statement());
      case Mode::Delete: return emptyFilter(open<Formszsfbz1>(editing.row, filter.trimmed()));
    }
  });
  formStandards.editedBy([this, written, emptyFilter](const Editing& editing) {
    if (editing.EditMode == Mode::Delete) emptyFilter(open<Formszsfbz4>(editing.row, filter.trimmed()));
    else open<Formszsfbz3>(editing, written);
  });
}

void Formsz::load() {
  for (kit::RecordDesk* one : {&majors, &classes, &items, &classStandards, &formStandards, &bands, &forms}) one->open();
  czjl.open("select * from czjl order by kjsj desc");
  school::loadStandardBasis(desk);
  basis.set(desk.session.standard_basis_class ? 0 : 1);
  showStandards();
}

// All tabs, not only the one in front: a renamed major, class or item shows in several.
void Formsz::readAgain() {
  for (kit::RecordDesk* one : {&majors, &classes, &items, &forms}) one->reload();
  // A class or form that is gone, or has another name, is nothing to filter by.
  if (filter.blank() || std::ranges::count(filterEntries(), filter.trimmed()) > 0) return standards().reload();
  filter.clear();
  showStandards();
}

void Formsz::chooseBasis() {
  filter.clear();
  showStandards();
  if (byClass() == desk.session.standard_basis_class) return;
  school::storeSetting(desk, "bjsf1", byClass());
  desk.session.standard_basis_class = byClass();  // also without a record to write it to
}

std::vector<std::string> Formsz::filterEntries() {
  return byClass() ? kit::columnTexts(desk.store, "select * from bjzl order by bjdh", "bjmc")
                   : kit::columnTexts(desk.store, "select * from rxxs", "rxxs");
}

void Formsz::showStandards() {
  const std::string entry = filter.trimmed();
  standards().show({entry.empty() ? Sql()
                    : byClass()   ? Sql(" where bjmc='") + entry + "' order by sfxmbh"
                                  : Sql(" where rxxs='") + entry + "'"});
  classStandards.setVisible(byClass());
  formStandards.setVisible(!byClass());
}

void Formsz::emptyLog() {
  if (czjl.rows().empty()) return inform("不存在需要清空的记录！  ", "信息提示");
  if (!ask("您确认是要清空操作记录吗？        ", "警告")) return;
  kit::removeEach(desk.store, "select * from czjl order by kjsj desc");
  czjl.reload();
}

}  // namespace feesetup
