#include <algorithm>

#include "upkeep/password_change.h"
#include "upkeep/user_edit.h"
#include "upkeep/user_list.h"
#include "upkeep/user_rights.h"

namespace upkeep {

using namespace kit;

Layout Formyhxx2::layout() {
  return {.root = column({form({wide(yhxm, 14), wide(yhjb, 14), wide(yhmm, 14)}), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

Layout Formyhxx3::layout() {
  return {.root = column(
              {form({wide(old_password, 14), wide(new_password, 14), wide(repeated, 14)}), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

// Five columns of groups of about equal height.
Layout Formyhxx1::layout() {
  std::vector<Nodes> columns(5);
  std::vector<std::size_t> heights(5, 0);
  for (const RightGroup& one : rightGroups()) {
    Nodes ticks;
    for (const RightCaption& right : one.rights) ticks.push_back(*box(right.number));
    const auto shortest = static_cast<std::size_t>(std::min_element(heights.begin(), heights.end()) - heights.begin());
    heights[shortest] += one.rights.size() + 2;
    columns[shortest].push_back(group(one.title, std::move(ticks)));
  }
  Nodes side;
  for (Nodes& groups : columns) {
    groups.push_back(stretch());
    side.push_back(column(std::move(groups)));
  }
  return {.root = column({row({form({wide(yhxm, 14)}), note("选择用户后勾选其权限；授权在该用户下次登录时生效。")}),
                          row(std::move(side)), buttons({save, back})}),
          .confirm = &save,
          .cancel = &back,
          .width = 1120};
}

}  // namespace upkeep
