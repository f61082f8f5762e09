#include "collection/receipt_notes.h"

namespace collection {

kit::Layout Formzctsf8::layout() {
  using namespace kit;
  const auto cells = [](Line& line) {
    return Nodes{wide(line.number, 3), wide(line.summary, 16), wide(line.remark, 32)};
  };
  return {.root = column({
              kit::lines({"序号", "要打印的摘要信息", "要打印的备注信息"}, tiled(lines, 1, cells)),
              buttons({print, withoutNotes}),
          }),
          .confirm = &print,
          .cancel = &withoutNotes};
}

}  // namespace collection
