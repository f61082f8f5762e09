#include "collection/fee_window.h"

namespace collection {

kit::Layout Formzctsf4::layout() {
  using namespace kit;
  Nodes grid;
  for (FeeLine& line : lines)
    grid.push_back(row({wide(line.place, 8), wide(line.sfxm, 16), wide(line.due, 8), line.tick, wide(line.paid, 8)}));
  grid.push_back(row({stretch(), stretch(), wide(totalDue, 8), stretch(), wide(totalPaid, 8)}));
  grid.push_back(row({stretch(), stretch(), stretch(), stretch(), wide(difference, 8)}));
  return {.root = column({
              group("学生与收据", {form({wide(xh, 10), wide(xm, 10), wide(rxrq, 8), wide(rxxs, 7), wide(bjmc, 11),
                                         wide(xq, 10), wide(jfrq, 8), wide(jffs, 7)},
                                        4),
                                   already}),
              row({modeHeading, stretch(), arrearsMode, allLines}),
              kit::lines({"序号/补交日期", "收费项目", "应交金额", "选择", "实交金额"}, std::move(grid)),
              note("空格：勾选　回车：下一项，全部勾选后直接收费　Esc：撤销"),
              buttons({arrearsEntry, confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace collection
