#include "students/class_transfer_window.h"

namespace students {

kit::Layout Formtb::layout() {
  using namespace kit;
  return {.root = column({
              form({wide(fromClass, 16), wide(toClass, 16), wide(zymc, 16), wide(xtbh, 16)}, 2),
              group(students, {lines({}, tiled(boxes, 6, [](auto& box) { return Nodes{wide(box, 8)}; })), stretch()}),
              buttons({tickAll, confirm, back}),
          }),
          .confirm = &confirm,
          .cancel = &back,
          .width = 1040,
          .height = 590};
}

}  // namespace students
