#include "students/student_edit.h"

namespace students {

kit::Layout Formzctxs::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  column({
                      group("基本资料", {form({wide(xh, 16), wide(xm, 16), xb, bjmc, mz, csrq, sfzhm, rxrq}, 2)}),
                      group("联系与收费", {form({wide(zzmm, 16), wide(lxdh, 16), sjhm, rxxs, sfbz, jtzz, yzbm, eml,
                                                 byxx, yhkh, spanning(zymc, 2)},
                                                2)}),
                  }),
                  group("照片", {column({xp, choosePhoto, stretch()})}),
              }),
              group("备注", {bz}),
              row({xssf, stretch(), buttons({confirm, cancel})}),
          }),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace students
