#include "arrears/arrears_edit.h"

#include "arrears/arrears_ledger.h"
#include "base/text.h"
#include "kit/rows.h"
#include "kit/validation.h"

namespace arrears {

Formqf::Formqf(kit::Desk& all) : Screen(all, "Formqf", "欠费信息编辑") {
  bjje.rightAligned = sbjje.rightAligned = true;
  clfs.onDrop([this] {
    auto states = kit::columnTexts(desk.store, "select clfs from qfjl group by clfs", "clfs");
    std::erase(states, "");
    clfs.setChoices(std::move(states));
  });
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formqf::load() {
  selected_ = base::trim(desk.session.arrears_selection);
  store::RecordSet row = rows(rowOf(selected_));
  if (desk.session.EditMode != kit::Mode::Modify || selected_.empty() || row.empty()) return close();
  for (kit::Field* field : {&xh, &xm, &bjmc, &lsh, &sfxm, &xq, &clfs}) field->set(row.get(field->name).trimmed());
  for (kit::Field* field : {&qfrq, &bjrq, &sbjrq}) field->set(kit::formatted(row.get(field->name), kit::Format::Date));
  for (kit::Field* field : {&bjje, &sbjje}) field->set(kit::formatted(row.get(field->name), kit::Format::Money));
  sfxm.focus();
}

bool Formqf::valid() {
  const char* const fault = "错误提示";
  const char* const noDate = "欠费日期不能为空 ！     ";
  const char* const badDate = "欠费日期数据有误，应该是：yyyy-mm-dd 格式 ！     ";
  const auto unknownState = [this] {
    const std::string state = clfs.trimmed();
    return !state.empty() && state != settled && state != waived && state != partlyPaid;
  };
  const auto missingWithState = [this](const kit::Field& field) {
    return [this, &field] { return !clfs.blank() && field.blank(); };
  };
  // All three dates are refused in the words of the first: the operators know the message.
  const std::vector<kit::Rule> rules = {
      {&qfrq, kit::blank(qfrq), noDate, fault},
      {&qfrq, kit::notDate(qfrq), badDate, fault},
      {&bjrq, kit::blank(bjrq), noDate, fault},
      {&bjrq, kit::notDate(bjrq), badDate, fault},
      {&sbjrq, kit::filledNotDate(sbjrq), badDate, fault},
      {&bjje, kit::filledNotAmount(bjje), "补交金额应该是数字 ！     ", fault},
      {&sbjje, kit::filledNotAmount(sbjje), "实交金额应该是数字 ！     ", fault},
      {&clfs, unknownState, "处理进度只能以“结清”“不足”“减免”来表示 ！  ", "操作提示"},
      {&sbjrq, missingWithState(sbjrq), "实交日期不能为空！    ", fault},
      {&sbjje, missingWithState(sbjje), "实交金额不能为空！    ", fault},
  };
  return kit::holds(desk.person, rules);
}

void Formqf::save() {
  if (!ask("您确认是要修改欠费记录吗？     ", "操作提示") || !valid()) return;
  const auto paid = base::Date::parse(sbjrq.trimmed());
  editArrears(desk.store, selected_,
              {{"xh", xh.trimmed()},
               {"xm", xm.trimmed()},
               {"bjmc", bjmc.trimmed()},
               {"lsh", lsh.trimmed()},
               {"sfxm", sfxm.trimmed()},
               {"qfrq", base::Date::parse(qfrq.trimmed()).value()},
               {"xq", xq.trimmed()},
               {"bjrq", base::Date::parse(bjrq.trimmed()).value()},
               {"bjje", bjje.trimmed()},
               {"sbjrq", paid ? store::Value(*paid) : store::Value("")},
               {"sbjje", sbjje.trimmed()},
               {"clfs", clfs.trimmed()}});
  close();
  inform("记录修改成功！     ", "信息提示");
}

}  // namespace arrears
