#include "arrears/arrears_entry.h"

namespace arrears {

kit::Layout Formqfcl::layout() {
  using namespace kit;
  Nodes grid;
  for (DebtLine& line : lines) {
    Nodes cells{wide(line.sfxm, 12), wide(line.total, 7)};
    for (InstalmentFields& instalment : line.instalments) {
      cells.push_back(wide(instalment.date, 8));
      cells.push_back(wide(instalment.amount, 7));
    }
    grid.push_back(row(std::move(cells)));
  }
  return {.root = column({
              group("学生", {form({wide(xh, 10), wide(xm, 8), wide(bjmc, 14), wide(xq, 12), wide(qfts, 4)}, 5)}),
              status,
              kit::lines({"收费项目", "欠费总额", "首期补交日期", "首期金额", "二期补交日期", "二期金额",
                          "三期补交日期", "三期金额"},
                         std::move(grid)),
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace arrears
