#include "feesetup/enrolment_form_edit.h"

#include "kit/rows.h"

namespace feesetup {

using kit::Box;
using kit::Mode;
using store::Sql;

Formszrxxs::Formszrxxs(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formszrxxs", "学生入学形式设置", "rxxs", editing) {}

std::vector<kit::Rule> Formszrxxs::rules() {
  return {{&rxxs, kit::blank(rxxs), "录入项不能为空！        ", kit::wrongInput}, noQuote(rxxs)};
}

std::vector<kit::Rule> Formszrxxs::guards() {
  const auto named = [this](std::string_view table) {
    return [this, table] { return !rows(Sql::table(table) + " where rxxs='" + rxxs.trimmed() + "'").empty(); };
  };
  switch (EditMode) {
    case Mode::Add: return {{&rxxs, named("rxxs"), "存在相同的记录！        ", "信息提示", Box::Information}};
    case Mode::Modify: return {};
    case Mode::Delete:
      return {{nullptr, named("xs"), "该入学形式已被系统引用，您不能删除它！        ", "信息提示", Box::Information}};
  }
  return {};
}

kit::RecordEdit::Words Formszrxxs::words() {
  return {.modify = {{"修改当前记录将同时修改所有学生的该入学形式名称，您确认继续吗 ？    "}},
          .added = "信息录入成功！        ",
          .modified = "信息修改成功！        ",
          .removed = "信息删除成功！        "};
}

// The standards and the payments of the form keep its old name; students of the new name have no standards until they
// are set again.
void Formszrxxs::modifying(store::RecordSet& row) {
  row.set("bsh", now());
  if (changed(rxxs))
    kit::setEach(desk.store, Sql("select * from xs where rxxs='") + former(rxxs) + "'", "rxxs", rxxs.trimmed());
}

}  // namespace feesetup
