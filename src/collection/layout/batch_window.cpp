#include "collection/batch_window.h"

namespace collection {

kit::Layout Formzctsf7::layout() {
  using namespace kit;
  const auto cell = [](auto& one) { return Nodes{wide(one.tick, 6), wide(one.je, 4)}; };
  return {.root = column({
              row({column({form({wide(sfxm, 9), wide(xq, 9), wide(jfrq, 9), wide(standard, 9)}), classes, tickAll}),
                   group(students, {lines({}, tiled(cells, 5, cell))})}),
              buttons({wide(summary, 13), wide(person, 9), confirm, back}),
          }),
          .confirm = &confirm,
          .cancel = &back,
          .width = 1240,
          .height = 710};
}

}  // namespace collection
