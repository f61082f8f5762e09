#include "students/student_edit.h"

namespace students {

kit::Layout Formzctxs::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  group("学籍资料", {form({wide(xh, 15), wide(xm, 15), wide(xb, 13),  //
                                           spanning(bjmc, 2), mz,                     //
                                           csrq, sfzhm, rxrq,                         //
                                           zzmm, lxdh, sjhm,                          //
                                           rxxs, sfbz, zymc,                          //
                                           spanning(jtzz, 2), yzbm,                   //
                                           eml, byxx, yhkh},
                                          3)}),
                  group("照片", {column({xp, choosePhoto, stretch()})}),
              }),
              group("备注", {bz}),
              row({xssf, stretch(), buttons({confirm, cancel})}),
          }),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace students
