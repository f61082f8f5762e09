#include "upkeep/user_list.h"

#include "upkeep/user_edit.h"

namespace upkeep {

Formyhxx::Formyhxx(kit::Desk& all)
    : Screen(all, "Formyhxx", "用户管理"),
      users(*this, "users", all.store,
            {{"用户姓名", "yhxm", kit::Format::Text, 10}, {"用户级别", "yhjb", kit::Format::Text, 10}}) {
  add.onPress([this] { edit(kit::Mode::Add, ""); });
  modify.onPress([this] { edit(kit::Mode::Modify, "不存在需要修改的记录！  "); });
  remove.onPress([this] { edit(kit::Mode::Delete, "不存在需要删除的记录！  "); });
  users.onDoubleClick([this] { edit(kit::Mode::Modify, ""); });
  back.onPress([this] { close(); });
}

void Formyhxx::load() { users.open("select * from yhxx"); }

void Formyhxx::edit(kit::Mode mode, const std::string& noneText) {
  if (mode != kit::Mode::Add) {
    if (users.count() == 0) return warn(noneText, "信息提示");
    desk.session.edited = users.current();
    if (!desk.session.edited) return;
  }
  desk.session.EditMode = mode;
  open<Formyhxx2>();
  desk.session.edited = nullptr;
  users.reload();
}

}  // namespace upkeep
