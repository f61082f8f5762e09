#include "collection/batch_window.h"

namespace collection {

kit::Layout Formzctsf7::layout() {
  using namespace kit;
  constexpr std::size_t across = 5;
  Nodes grid;
  for (std::size_t first = 0; first < cells.size(); first += across) {
    Nodes line;
    for (std::size_t index = first; index < first + across && index < cells.size(); ++index) {
      line.push_back(wide(cells[index].tick, 6));
      line.push_back(wide(cells[index].je, 4));
    }
    grid.push_back(row(std::move(line)));
  }
  return {.root = column({
              row({column({form({wide(sfxm, 9), wide(xq, 9), wide(jfrq, 9), wide(standard, 9)}), classes, tickAll}),
                   group(students, {lines({}, std::move(grid))})}),
              buttons({wide(summary, 13), wide(person, 9), confirm, back}),
          }),
          .confirm = &confirm,
          .cancel = &back,
          .width = 1240,
          .height = 710};
}

}  // namespace collection
