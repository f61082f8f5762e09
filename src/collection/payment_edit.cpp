#include "collection/payment_edit.h"

namespace collection {

using kit::Format;

Formzctsf1::Formzctsf1(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formzctsf1", "学生交费记录编辑", "jfjl", editing) {
  je.rightAligned = true;
  xq.offers("select xq from jfjl group by xq", "xq");
  sfxm.offers("select sfxm from jfjl group by sfxm", "sfxm");
  jffs.offers("select jffs from jfjl group by jffs", "jffs");
  skr.offers("select skr from jfjl group by skr", "skr");
}

std::vector<kit::RecordEdit::Bound> Formzctsf1::bound() {
  return {{lsh, 10},  {xh, 10},   {xm, 10},
          {bjmc, 14}, {xq, 12},   {jfrq, 8, Format::Date},
          {fpbh, 8},  {sfxm, 12}, {je, 8, Format::Money},
          {jffs, 8},  {sftj, 4},  {skr, 8}};
}

kit::RecordEdit::Words Formzctsf1::words() {
  return {.modify = {},
          .remove = {{"您确认是要删除选定的交费记录吗？   ", "警告"}},
          .added = {},
          .modified = "选定记录已修改！   ",
          .removed = "选定记录已删除 ！        ",
          .modifiedTitle = "修改成功提示"};
}

void Formzctsf1::shown(store::RecordSet&) {
  if (EditMode == kit::Mode::Delete) confirm.setCaption("删除");
  else xq.focus();
}

std::vector<kit::Rule> Formzctsf1::rules() {
  if (EditMode == kit::Mode::Delete) return {};
  const auto noMark = [this] {
    const bool other = !sftj.blank() && sftj.trimmed() != "*";
    if (other) sftj.clear();
    return other;
  };
  return {
      {&xq, kit::longerThan(xq, 20), "学年学期不能超过20个字符！   ", kit::wrongInput},
      {&xq, kit::blank(xq), "学年学期不能为空！   ", kit::wrongInput},
      {&jfrq, kit::blank(jfrq), "交费日期不能为空！   ", kit::wrongInput},
      {&jfrq, kit::notDate(jfrq), "交费日期格式不正确，应为“yyyy-m-d”格式！   ", kit::wrongInput},
      {&sfxm, kit::longerThan(sfxm, 20), "收费项目名称不能超过20个字符！   ", kit::wrongInput},
      // What does not begin with a number reads as zero.
      {&je, [this] { return je.money().zero(); }, "收费金额不能为零，如必需为零，您可以删除该记录！   ",
       kit::wrongInput},
      {&je, kit::notAmount(je), "收费金额必须是数字！   ", kit::wrongInput},
      {&sftj, noMark, "已提交只能是“*”，未提交为空！不能为其它字符！   ", kit::wrongInput},
      {&skr, kit::longerThan(skr, 20), "收款人姓名不能超过20个字符！   ", kit::wrongInput},
  };
}

}  // namespace collection
