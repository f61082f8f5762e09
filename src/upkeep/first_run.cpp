#include "upkeep/first_run.h"

#include "kit/validation.h"
#include "upkeep/users.h"

namespace upkeep {

Formyhxx4::Formyhxx4(kit::Desk& desk) : Screen(desk, "Formyhxx4", "系统启用设置") {
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formyhxx4::save() {
  const auto empty = [this] { return yhxm.blank() || yhmm.blank(); };
  if (!kit::holds(desk.person, {{nullptr, empty, "输入项不能为空！     ", "操作提示"},
                                {&yhxm, kit::holdsQuote(yhxm), kit::quoteRefused, kit::wrongInput}}))
    return;
  if (!addFirstUser()) return stop("其他计算机已经设置了用户，请撤销后重新启动本系统再登录！     ", "操作提示");
  desk.session.first_user_added = true;
  inform("设置完成！系统默认您为“超级管理员”！     ", "信息提示");
  close();
}

// Whoever finds this screen standing when the office has its users must not become one of them.
bool Formyhxx4::addFirstUser() {
  store::Unit unit(desk.store);
  if (!rows("select * from yhxx").empty()) return false;
  addUser(desk.store, yhxm.trimmed(), superLevel, yhmm.trimmed(), desk.clock.now());
  unit.finish();
  return true;
}

}  // namespace upkeep
