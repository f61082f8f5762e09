#include "students/student_view.h"

namespace students {

kit::Layout Formzctxsll::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  group("学籍资料", {form({wide(xh, 15), wide(xm, 15), wide(xb, 15),  //
                                           spanning(bjmc, 2), zymc,                   //
                                           csrq, mz, sfzhm,                           //
                                           rxrq, rxxs, sfbz,                          //
                                           zzmm, lxdh, sjhm,                          //
                                           spanning(jtzz, 2), yzbm,                   //
                                           eml, byxx, yhkh},
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
