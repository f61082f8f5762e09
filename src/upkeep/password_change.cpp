#include "upkeep/password_change.h"

#include "kit/validation.h"
#include "upkeep/password.h"

namespace upkeep {

Formyhxx3::Formyhxx3(kit::Desk& all) : Screen(all, "Formyhxx3", "用户密码修改") {
  confirm.onPress([this] { save(); });
  cancel.onPress([this] { close(); });
}

void Formyhxx3::save() {
  store::RecordSet user = rows(store::Sql("select * from yhxx where yhxm='") + desk.session.SessionUser + "'");
  const bool known = !user.empty();
  if (!kit::holds(
          desk.person,
          {{&old_password, kit::blank(old_password), "您必须输入旧密码！     ", "操作提示"},
           {&new_password, kit::blank(new_password), "您必须输入新密码！     ", "操作提示"},
           {&repeated, kit::blank(repeated), "您必须对新密码进行确认！     ", "操作提示"},
           {&old_password, [&] { return known && !passwordFits(user.get("yhmm").trimmed(), old_password.text()); },
            "旧密码错误，不能进行修改操作！     ", kit::wrongInput},
           {&repeated, [this] { return new_password.trimmed() != repeated.trimmed(); }, "新密码与验证码不相符！     ",
            kit::wrongInput}}))
    return;
  if (!known) return stop("当前用户已被删除，密码未能修改，请与管理员联系。", kit::wrongInput);
  user.set("yhmm", hashPassword(new_password.text()));
  user.update();
  inform("密码修改成功！     ", "信息提示");
  close();
}

}  // namespace upkeep
