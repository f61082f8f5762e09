#include "upkeep/user_list.h"

#include "upkeep/user_edit.h"

namespace upkeep {

using kit::Box;
using kit::Mode;

namespace {

const kit::RecordDeskPlan plan{
    .table = "yhxx",
    .name = "users",
    .columns = {{"用户姓名", "yhxm", kit::Format::Text, 10}, {"用户级别", "yhjb", kit::Format::Text, 10}},
    .buttons = {{"add", "添加", "plus", Mode::Add},
                {"modify", "修改", "pencil", Mode::Modify, "不存在需要修改的记录！  ", {}, Box::Warning},
                {"remove", "删除", "trash-2", Mode::Delete, "不存在需要删除的记录！  ", {}, Box::Warning}}};

}  // namespace

Formyhxx::Formyhxx(kit::Desk& all) : DeskScreen(all, "Formyhxx", "用户管理", plan, 560, 420) {
  records.editedIn<Formyhxx2>();
}

}  // namespace upkeep
