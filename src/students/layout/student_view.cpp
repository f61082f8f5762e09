#include "students/student_view.h"

namespace students {

kit::Layout Formzctxsll::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  group("学籍资料", {form({xh, xm, xb, spanning(bjmc, 2), mz, csrq, rxrq, sfzhm, zzmm, rxxs, sfbz, zymc,
                                           byxx, yhkh, lxdh, sjhm, eml, spanning(jtzz, 2), yzbm},
                                          3)}),
                  group("照片", {column({xp, stretch()})}),
              }),
              group("备注", {bz, note("您可以在上面直接修改或更新备注信息")}),
              buttons({back}),
          }),
          .confirm = &back,
          .cancel = &back};
}

}  // namespace students
