#include "upkeep/school_name.h"

namespace upkeep {

kit::Layout Formxxmc::layout() {
  using namespace kit;
  return {.root = column({note("学校名称显示在登录窗口、控制台、收据和报表上。"), form({wide(xxmc, 20)}),
                          buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace upkeep
