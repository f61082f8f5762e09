#include "feesetup/setup_tab.h"

namespace feesetup {

SetupTab::SetupTab(kit::Screen& screen, store::Store& store, const std::string& table,
                   std::vector<kit::ListColumn> columns)
    : grid(screen, table, store, std::move(columns)),
      add(screen, table + "_add", "添加", "plus"),
      modify(screen, table + "_modify", "修改", "edit"),
      remove(screen, table + "_remove", "删除", "trash-2") {
  grid.onDoubleClick([this] { modify.invoke(); });
}

kit::Node SetupTab::group(std::string title) {
  return kit::group(std::move(title), {grid, kit::buttons({add, modify, remove})});
}

}  // namespace feesetup
