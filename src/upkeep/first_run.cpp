#include "upkeep/first_run.h"

#include "upkeep/users.h"

namespace upkeep {

Formyhxx4::Formyhxx4(kit::Desk& desk) : Screen(desk, "Formyhxx4", "系统启用设置") {
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formyhxx4::save() {
  if (yhxm.blank() || yhmm.blank()) return stop("输入项不能为空！     ", "操作提示");
  addUser(desk.store, yhxm.trimmed(), superLevel, yhmm.trimmed(), desk.clock.now());
  desk.session.first_user_added = true;
  inform("设置完成！系统默认您为“超级管理员”！     ", "信息提示");
  close();
}

}  // namespace upkeep
