#include "feesetup/standard_delete.h"

namespace feesetup {

kit::Layout StandardDelete::layout() {
  using namespace kit;
  return {.root = column({what, buttons({confirm, cancel})}), .confirm = &confirm, .cancel = &cancel, .width = 360};
}

}  // namespace feesetup
