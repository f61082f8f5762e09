#include "upkeep/school_name.h"

#include "kit/rows.h"
#include "kit/validation.h"

namespace upkeep {
namespace {

constexpr std::size_t longest = 20;  // characters: what a receipt has room for
const store::Sql setting = "select * from xtsz where mc='学校名称'";

}  // namespace

std::string schoolName(store::Store& store) {
  store::RecordSet row(store, setting);
  return row.empty() ? usualSchoolName : row.get("nr").text();
}

Formxxmc::Formxxmc(kit::Desk& all) : Screen(all, "Formxxmc", "学校名称设置") {
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formxxmc::load() {
  shown_ = schoolName(desk.store);
  xxmc.set(shown_);
  xxmc.focus();
}

void Formxxmc::save() {
  if (!kit::holds(desk.person, {{&xxmc, kit::blank(xxmc), "学校名称不能为空！     ", "操作提示"},
                                {&xxmc, kit::longerThan(xxmc, longest), "学校名称不能超过20个字！     ", "操作提示"}}))
    return;
  store::Unit unit(desk.store);
  if (schoolName(desk.store) != shown_) throw kit::changedMeanwhile("学校名称");
  store::RecordSet row = rows(setting);
  if (row.empty()) row.addNew();
  kit::writeRow(row, {{"mc", "学校名称"}, {"nr", xxmc.trimmed()}});
  unit.finish();
  desk.session.SchoolName = xxmc.trimmed();
  inform("学校名称已保存，其他计算机在下次登录时使用！     ", "信息提示");
  close();
}

}  // namespace upkeep
