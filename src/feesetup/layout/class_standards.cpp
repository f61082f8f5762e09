#include "feesetup/class_standards.h"

namespace feesetup {

kit::Layout Formszsfbz::layout() {
  using namespace kit;
  return {.root = column({
              form({wide(xq, 18), wide(sfxmmc, 18), wide(sfxmbh, 6), wide(je, 10)}),
              group("适用范围", {scope, form({wide(selection, 18)})}),
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 420};
}

}  // namespace feesetup
