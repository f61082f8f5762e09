#include "students/student_view.h"

namespace students {

kit::Layout Formzctxsll::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  group("学籍资料", {form({wide(xh, 16), wide(xm, 16), xb, bjmc, csrq, rxrq, sfzhm, zzmm, lxdh, sjhm,
                                           rxxs, yzbm, spanning(jtzz, 2), mz, eml, sfbz, zymc, byxx, yhkh},
                                          2)}),
                  group("照片", {column({xp, stretch()})}),
              }),
              group("备注", {bz, note("您可以在上面直接修改或更新备注信息")}),
              buttons({back}),
          }),
          .confirm = &back,
          .cancel = &back};
}

}  // namespace students
