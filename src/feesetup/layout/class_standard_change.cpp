#include "feesetup/class_standard_change.h"

namespace feesetup {

kit::Layout Formszsfbz2::layout() {
  using namespace kit;
  return {.root = column({
              what,
              form({wide(before, 18), wide(after, 18)}),
              caution,
              all,
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 400};
}

}  // namespace feesetup
