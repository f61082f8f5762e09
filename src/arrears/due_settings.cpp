#include "arrears/due_settings.h"

#include "arrears/due_progress.h"
#include "base/date.h"
#include "kit/rows.h"
#include "register/settings.h"

namespace arrears {
namespace {

using store::Sql;

struct RangeWords {
  std::string option, label;
  Sql values;  // the statement and the column behind the list
  const char* column;
  std::string missing;
};

const std::vector<RangeWords>& ranges() {
  static const std::vector<RangeWords> all{
      {"导入全校信息", "导入全校应交费信息", {}, "", ""},
      {"导入指定专业信息", "请选择要导入的专业名称", "select * from zymcb order by zybh", "zymc",
       "请选择或输入专业名称 ！      "},
      {"导入指定班级信息", "请选择要导入的班级名称", "select * from bjzl order by bjdh", "bjmc",
       "请选择或输入班级名称 ！      "},
      {"按入学形式导入", "请选择要导入的入学形式", "select * from rxxs", "rxxs", "请选择或输入入学形式 ！      "}};
  return all;
}

std::vector<std::string> offered(bool byClass) {
  std::vector<std::string> options;
  for (const RangeWords& one : ranges()) options.push_back(one.option);
  if (byClass) options.pop_back();
  return options;
}

const RangeWords& wordsOf(const kit::Choice& range) { return ranges()[static_cast<std::size_t>(range.chosen())]; }

}  // namespace

Formqfcl2::Formqfcl2(kit::Desk& all)
    : Screen(all, "Formqfcl2", "应交费学生信息导入设置"),
      range(*this, "range", offered(all.session.standard_basis_class)) {
  range.onChange([this] { rangeChanged(); });
  items.onChange([this] { itemsChanged(); });
  value.onDrop([this] {
    const RangeWords& words = wordsOf(range);
    value.setChoices(kit::columnTexts(desk.store, words.values, words.column));
  });
  item.offers("select * from sfxmb order by sfxmbh", "sfxmmc");
  xq.offers("select xq from jfjl group by xq", "xq");
  confirm.onPress([this] { import(); });
  cancel.onPress([this] { close(); });
}

void Formqfcl2::load() {
  school::loadReminderDays(desk);
  const base::Date today = desk.clock.today();
  xq.set(base::defaultTerm(today));
  qfts.set(std::to_string(desk.session.reminder_days));
  bjrq.set(today.plain());
  rangeChanged();
  itemsChanged();
}

void Formqfcl2::rangeChanged() {
  const bool whole = chosenRange() == Range::School;
  value.clear();
  value.setLabel(wordsOf(range).label);
  value.enable(!whole);
  if (!whole) value.focus();
}

void Formqfcl2::itemsChanged() {
  item.enable(onlyOneItem());
  if (!onlyOneItem()) return item.clear();
  school::loadArrearsSettings(desk);
  item.set(desk.session.arrears_item);
  item.focus();
}

std::vector<kit::Rule> Formqfcl2::rules() {
  return {
      {&item, [this] { return onlyOneItem() && item.blank(); }, "请选择您要导入的收费项目名称！    ", "操作提示"},
      {&value, [this] { return chosenRange() != Range::School && value.blank(); }, wordsOf(range).missing, "操作提示"},
      {&xq, kit::blank(xq), "请选择或输入学年学期 ！      ", "操作提示"},
      {&bjrq, kit::notDate(bjrq), "补交日期格式不正确，请输入正确的格式 yyyy-m-d  ！  ", "操作提示"}};
}

DueImport Formqfcl2::chosen() {
  DueImport result{.range = chosenRange(),
                   .value = value.trimmed(),
                   .major_code = "",
                   .item = std::nullopt,
                   .term = xq.trimmed(),
                   .lead = qfts.trimmed(),
                   .deadline = bjrq.trimmed()};
  if (onlyOneItem()) result.item = item.trimmed();
  if (result.range == Range::Major) {
    store::RecordSet major = rows(Sql("select * from zymcb where zymc='") + result.value + "'");
    if (!major.empty()) result.major_code = major.get("zybh").trimmed();
  }
  return result;
}

void Formqfcl2::import() {
  if (!kit::holds(desk.person, rules())) return;
  if (!ask("导入可能需要一定的时间，导入中请不要进行其它操作！您确认继续吗？      ", "操作提示")) return;
  if (open<Formqfcl3>(chosen())) close();
}

}  // namespace arrears
