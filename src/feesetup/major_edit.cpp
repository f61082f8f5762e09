#include "feesetup/major_edit.h"

#include "base/text.h"
#include "kit/rows.h"

namespace feesetup {

using kit::Mode;
using store::Sql;

Formszzymc::Formszzymc(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formszzymc", "专业及班级分类编辑", "zymcb", editing) {}

void Formszzymc::propose() {
  zymc.focus();
  auto majors = rows("select * from zymcb");
  if (majors.empty()) return zybh.set("11");
  majors.last();
  zybh.set(base::nextNumber(majors.get("zybh").trimmed()));
}

std::vector<kit::Rule> Formszzymc::rules() {
  return {{&zybh, kit::longerThan(zybh, 5), "专业编号不能大于五个字符 ！　　", kit::wrongInput},
          {&zymc, kit::longerThan(zymc, 30), "专业名称不能大于30个字符 ！　　", kit::wrongInput},
          {zybh.blank() ? &zybh : &zymc, [this] { return zybh.blank() || zymc.blank(); },
           "专业编号与专业名称均不能为空 ！　　", kit::wrongInput},
          {&zybh, kit::notNumeric(zybh), "请输入数字 ！     ", kit::wrongInput},
          noQuote(zymc)};
}

kit::RecordEdit::Words Formszzymc::words() {
  return {.modify = {{"您确认要修改记录吗？  "}},
          .remove = {{"您确认要删除选定记录吗？   ", "删除提示"}},
          .modified = "选定记录已修改 ！     ",
          .removed = "选定记录已删除 ！     "};
}

// A repeated code or name is let through: schools run two groups of one major side by side.
void Formszzymc::adding(store::RecordSet& row) {
  auto majors = rows("select * from zymcb");
  double id = 1;
  if (!majors.empty()) {
    majors.last();
    id = majors.get("id").number() + 1;
  }
  row.set("id", id);
  row.set("bsh", now());
}

// The code stays as it is: class codes and system numbers begin with it.
void Formszzymc::modify() {
  zybh.set(former(zybh));
  RecordEdit::modify();
}

void Formszzymc::modifying(store::RecordSet&) {
  if (changed(zymc))
    kit::setEach(desk.store, Sql("select * from bjzl where zymc='") + former(zymc) + "'", "zymc", zymc.trimmed());
}

std::vector<kit::Rule> Formszzymc::guards() {
  if (EditMode != Mode::Delete) return {};
  // The student records have no column stbh, so the store refuses this question and the major stays: a guard that is
  // always shut, kept until the office has decided what may become of a major's students and classes.
  const auto inUse = [this] {
    return !rows(Sql("select * from xs where left(stbh,2)='") + zybh.trimmed() + "'").empty();
  };
  return {{nullptr, inUse, "该专业已被学生信息引用,您不能删除它 ！     ", "信息提示", kit::Box::Information}};
}

void renumberMajors(store::Store& store) {
  store::Unit unit(store);
  store::RecordSet majors(store, "select * from zymcb order by zybh");
  int id = 0;
  store::forEach(majors, [&](store::RecordSet& major) {
    major.set("id", ++id);
    major.update();
  });
  unit.finish();
}

}  // namespace feesetup
