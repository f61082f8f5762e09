#include "arrears/arrears_edit.h"

#include "arrears/arrears_ledger.h"
#include "base/text.h"

namespace arrears {

using kit::Format;
using store::Fault;
using store::StoreError;

Formqf::Formqf(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formqf", "欠费信息编辑", "qfjl", editing) {
  confirm.setCaption("保存");
  bjje.rightAligned = sbjje.rightAligned = true;
  clfs.offers("select clfs from qfjl group by clfs", "clfs");
}

std::vector<kit::RecordEdit::Bound> Formqf::bound() {
  return {{xh, 10},
          {xm, 8},
          {bjmc, 14},
          {lsh, 12},
          {sfxm, 14},
          {qfrq, 12, Format::Date},
          {xq, 14},
          {bjrq, 12, Format::Date},
          {bjje, 14, Format::Money},
          {sbjrq, 12, Format::Date},
          {sbjje, 14, Format::Money},
          {clfs, 12}};
}

void Formqf::load() {
  if (EditMode == kit::Mode::Modify) RecordEdit::load();
  else close();
}

bool Formqf::valid() {
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
  return kit::holds(desk.person,
                    {{&qfrq, kit::blank(qfrq), noDate, kit::wrongInput},
                     {&qfrq, kit::notDate(qfrq), badDate, kit::wrongInput},
                     {&bjrq, kit::blank(bjrq), noDate, kit::wrongInput},
                     {&bjrq, kit::notDate(bjrq), badDate, kit::wrongInput},
                     {&sbjrq, kit::filledNotDate(sbjrq), badDate, kit::wrongInput},
                     {&bjje, kit::filledNotAmount(bjje), "补交金额应该是数字 ！     ", kit::wrongInput},
                     {&sbjje, kit::filledNotAmount(sbjje), "实交金额应该是数字 ！     ", kit::wrongInput},
                     {&clfs, unknownState, "处理进度只能以“结清”“不足”“减免”来表示 ！  ", "操作提示"},
                     {&sbjrq, missingWithState(sbjrq), "实交日期不能为空！    ", kit::wrongInput},
                     {&sbjje, missingWithState(sbjje), "实交金额不能为空！    ", kit::wrongInput},
                     {&lsh, kit::blank(lsh), "记录标识号不能为空！    ", kit::wrongInput},
                     {&lsh, kit::holdsQuote(lsh), "记录标识号中不能含有单引号（'）！    ", kit::wrongInput}});
}

void Formqf::modify() {
  if (ask("您确认是要修改欠费记录吗？     ", "操作提示") && valid()) RecordEdit::modify();
}

void Formqf::modifying(store::RecordSet& row) {
  if (changed(lsh) && !rows(store::Sql("select lsh from qfjl where lsh='") + lsh.trimmed() + "'").empty())
    throw StoreError(Fault::Other, "记录标识号“" + lsh.trimmed() + "”已被另一条欠费记录使用，请改用其他标识号！");
  // The amounts and the state say one thing together: who corrects one of them has looked at all.
  const std::initializer_list<kit::Field*> balance{&bjje, &sbjrq, &sbjje, &clfs};
  if (std::ranges::none_of(balance, [this](const kit::Field* one) { return changed(*one); })) return;
  for (const Bound& one : bound()) {
    const bool looked = std::ranges::find(balance, &one.field) != balance.end() && !changed(one.field);
    if (looked && base::trim(kit::formatted(row.get(one.field.name), one.format)) != former(one.field))
      throw StoreError(Fault::RowGone, "该欠费记录的交费情况已被其他计算机修改，请撤销后重新打开该记录再修改！");
  }
}

}  // namespace arrears
