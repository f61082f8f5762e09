#include "upkeep/user_edit.h"

#include "kit/rows.h"
#include "upkeep/password.h"
#include "upkeep/users.h"

namespace upkeep {

Formyhxx2::Formyhxx2(kit::Desk& all) : Screen(all, "Formyhxx2", "用户编辑") {
  yhjb.setChoices({"系统管理员", "一般操作员"});
  confirm.onPress([this] {
    switch (desk.session.EditMode) {
      case kit::Mode::Add: return add();
      case kit::Mode::Modify: return modify();
      case kit::Mode::Delete: return remove();
    }
  });
  cancel.onPress([this] { close(); });
}

void Formyhxx2::load() {
  if (desk.session.EditMode == kit::Mode::Add) return;
  if (!desk.session.edited) return close();
  store::RecordSet& user = *desk.session.edited;
  yhxm.set(user.get("yhxm").trimmed());
  yhjb.set(user.get("yhjb").trimmed());
  yhmm.set(user.get("yhmm").empty() ? "" : keptPassword);
}

bool Formyhxx2::filled() {
  if (!yhxm.blank() && !yhjb.blank() && !yhmm.blank()) return true;
  stop("输入项均不能为空！    ", "错误提示");
  return false;
}

void Formyhxx2::add() {
  if (!filled()) return;
  addUser(desk.store, yhxm.trimmed(), yhjb.trimmed(), yhmm.trimmed(), desk.clock.now());
  inform("用户添加成功！   ", "信息提示");
  close();
}

void Formyhxx2::modify() {
  if (!filled() || !ask("您确认要修改记录吗？  ", "修改提示")) return;
  // The rights rows keep the old name: a renamed user has no rights until an administrator grants them anew.
  store::RecordSet& user = *desk.session.edited;
  user.set("yhxm", yhxm.trimmed());
  user.set("yhjb", yhjb.trimmed());
  if (yhmm.text() != keptPassword) user.set("yhmm", hashPassword(yhmm.text()));
  user.update();
  inform("选定记录已修改 ！     ", "信息提示");
  close();
}

void Formyhxx2::remove() {
  if (!ask("您确认要删除选定记录吗？   ", "删除提示")) return;
  store::RecordSet& user = *desk.session.edited;
  store::Unit unit(desk.store);
  kit::removeEach(desk.store, store::Sql("select * from yhxx1 where yhxm='") + user.get("yhxm").trimmed() + "'");
  user.remove();
  unit.finish();
  inform("选定记录已删除 ！     ", "信息提示");
  close();
}

}  // namespace upkeep
