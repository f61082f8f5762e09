#include "collection/payment_edit.h"

#include "kit/rows.h"
#include "kit/validation.h"

namespace collection {

using store::Sql;

namespace {
Sql rowOf(const std::string& lsh) { return Sql("select * from jfjl where lsh='") + lsh + "'"; }
}  // namespace

Formzctsf1::Formzctsf1(kit::Desk& all) : Screen(all, "Formzctsf1", "学生交费记录编辑") {
  je.rightAligned = true;
  const auto offers = [this](kit::Field& field, const Sql& sql) {
    field.onDrop([this, &field, sql] { field.setChoices(kit::columnTexts(desk.store, sql, field.name)); });
  };
  offers(xq, "select xq from jfjl group by xq");
  offers(sfxm, "select sfxm from jfjl group by sfxm");
  offers(jffs, "select jffs from jfjl group by jffs");
  offers(skr, "select skr from jfjl group by skr");
  confirm.onPress([this] { desk.session.EditMode == kit::Mode::Delete ? remove() : modify(); });
  cancel.onPress([this] { close(); });
}

void Formzctsf1::load() {
  lsh.set(desk.session.payment_selection);
  store::RecordSet row = rows(rowOf(lsh.text()));
  if (row.empty()) return close();
  for (kit::Field* field : fields()) field->set(row.get(field->name).trimmed());
  jfrq.set(kit::formatted(row.get("jfrq"), kit::Format::Date));
  je.set(row.get("je").money().fixed2());
  const bool deleting = desk.session.EditMode == kit::Mode::Delete;
  confirm.setCaption(deleting ? "删除" : "确认");
  for (kit::Field* field : fields()) field->enable(!deleting);
  if (deleting) cancel.focus();
  else xq.focus();
}

bool Formzctsf1::valid() {
  const char* const fault = "错误提示";
  const auto zero = [this] { return !kit::notAmount(je)() && base::Money::leading(je.text()).zero(); };
  const std::vector<kit::Rule> rules = {
      {&xq, kit::longerThan(xq, 20), "学年学期不能超过20个字符！   ", fault},
      {&xq, kit::blank(xq), "学年学期不能为空！   ", fault},
      {&jfrq, kit::blank(jfrq), "交费日期不能为空！   ", fault},
      {&jfrq, kit::notDate(jfrq), "交费日期格式不正确，应为“yyyy-m-d”格式！   ", fault},
      {&sfxm, kit::longerThan(sfxm, 20), "收费项目名称不能超过20个字符！   ", fault},
      {&je, zero, "收费金额不能为零，如必需为零，您可以删除该记录！   ", fault},
      {&je, kit::notAmount(je), "收费金额必须是数字！   ", fault},
  };
  if (!kit::holds(desk.person, rules)) return false;
  if (!sftj.blank() && sftj.trimmed() != "*") {
    stop("已提交只能是“*”，未提交为空！不能为其它字符！   ", fault);
    sftj.clear();
    sftj.focus();
    return false;
  }
  return kit::holds(desk.person, {{&skr, kit::longerThan(skr, 20), "收款人姓名不能超过20个字符！   ", fault}});
}

void Formzctsf1::modify() {
  if (!valid()) return;
  store::Unit unit(desk.store);
  store::RecordSet row = rows(rowOf(lsh.text()));
  for (kit::Field* field : fields()) row.set(field->name, field->trimmed());
  row.update();
  unit.finish();
  close();
  inform("选定记录已修改！   ", "修改成功提示");
}

void Formzctsf1::remove() {
  if (!ask("您确认是要删除选定的交费记录吗？   ", "警告")) return;
  kit::removeEach(desk.store, rowOf(lsh.text()));
  close();
  inform("选定记录已删除 ！        ", "信息提示");
}

}  // namespace collection
