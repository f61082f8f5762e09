#include "feesetup/form_standards.h"

namespace feesetup {

kit::Layout Formszsfbz3::layout() {
  using namespace kit;
  const auto cells = [](StandardLine& line) {
    return Nodes{wide(line.place, 3), wide(line.sfxmmc, 18), wide(line.je, 10)};
  };
  return {.root = column({
              form({wide(xq, 18), wide(rxxs, 18)}),
              kit::lines({"序号", "收费项目", "收费标准"}, tiled(lines, 1, cells)),
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 480};
}

}  // namespace feesetup
