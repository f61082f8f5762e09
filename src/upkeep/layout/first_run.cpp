#include "upkeep/first_run.h"

namespace upkeep {

kit::Layout Formyhxx4::layout() {
  using namespace kit;
  return {.root = column({
              note("欢迎使用！第一位用户拥有全部权限，请牢记姓名与密码。"),
              form({wide(yhxm, 14), wide(yhmm, 14)}),
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace upkeep
