#include "students/student_edit.h"

namespace students {

kit::Layout Formzctxs::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  column({
                      group("基本资料", {form({xh, xm, xb, spanning(bjmc, 2), mz, csrq, sfzhm, rxrq}, 3)}),
                      group("联系与收费",
                            {form({zzmm, lxdh, sjhm, rxxs, sfbz, spanning(jtzz, 3), yzbm, eml, byxx, yhkh, zymc}, 3)}),
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
