#include "students/class_transfer_window.h"

namespace students {

kit::Layout Formtb::layout() {
  using namespace kit;
  constexpr std::size_t across = 6;
  Nodes grid;
  for (std::size_t first = 0; first < boxes.size(); first += across) {
    Nodes line;
    for (std::size_t index = first; index < first + across; ++index) line.push_back(wide(boxes[index], 8));
    grid.push_back(row(std::move(line)));
  }
  return {.root = column({
              form({wide(fromClass, 16), wide(toClass, 16), wide(zymc, 16), wide(xtbh, 16)}, 2),
              group(students, {lines({}, std::move(grid))}),
              buttons({tickAll, confirm, back}),
          }),
          .confirm = &confirm,
          .cancel = &back,
          .width = 1040,
          .height = 590};
}

}  // namespace students
