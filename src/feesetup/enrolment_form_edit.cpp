#include "feesetup/enrolment_form_edit.h"

#include "kit/rows.h"

namespace feesetup {

using store::Sql;

Formszrxxs::Formszrxxs(kit::Desk& all) : EditScreen(all, "Formszrxxs", "学生入学形式设置") {}

std::vector<kit::Rule> Formszrxxs::rules() {
  return {{&rxxs, kit::blank(rxxs), "录入项不能为空！        ", "错误提示"}};
}

void Formszrxxs::add() {
  auto same = rows(Sql("select * from rxxs where rxxs='") + rxxs.trimmed() + "'");
  if (!same.empty()) {
    inform("存在相同的记录！        ", "信息提示");
    return rxxs.focus();
  }
  same.addNew();
  same.set("rxxs", rxxs.trimmed());
  same.set("bsh", now());
  same.update();
  inform("信息录入成功！        ", "信息提示");
  close();
}

// The standards and the payments of the form keep its old name; students of the new name have no standards until they
// are set again.
void Formszrxxs::modify() {
  if (!ask("修改当前记录将同时修改所有学生的该入学形式名称，您确认继续吗 ？    ", "修改提示")) return;
  const std::string name = rxxs.trimmed();
  store::Unit unit(desk.store);
  auto form = rows(Sql("select * from rxxs where rxxs='") + oldName_ + "'");
  if (!form.empty()) {
    form.set("rxxs", name);
    form.set("bsh", now());
    form.update();
  }
  kit::setEach(desk.store, Sql("select * from xs where rxxs='") + oldName_ + "'", "rxxs", name);
  unit.finish();
  inform("信息修改成功！        ", "信息提示");
  close();
}

void Formszrxxs::remove() {
  if (!rows(Sql("select * from xs where rxxs='") + rxxs.trimmed() + "'").empty())
    return inform("该入学形式已被系统引用，您不能删除它！        ", "信息提示");
  row().remove();
  inform("信息删除成功！        ", "信息提示");
  close();
}

}  // namespace feesetup
