#include "arrears/due_progress.h"
#include "arrears/due_settings.h"

namespace arrears {

kit::Layout Formqfcl2::layout() {
  using namespace kit;
  return {.root = column({
              group("导入范围", {range, form({wide(value, 18)})}),
              group("收费项目", {items, form({wide(item, 18)})}),
              form({spanning(wide(xq, 18), 2), wide(qfts, 6), wide(bjrq, 8)}, 2),
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 480};
}

kit::Layout Formqfcl3::layout() {
  kit::Layout plan = LoadingScreen::layout();
  plan.root = kit::column({kit::stretch(), notice, text, kit::stretch()});
  return plan;
}

}  // namespace arrears
