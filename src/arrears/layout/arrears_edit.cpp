#include "arrears/arrears_edit.h"

namespace arrears {

kit::Layout Formqf::layout() {
  using namespace kit;
  return {.root = column({
              group("学生", {form({wide(xh, 10), wide(xm, 8), wide(bjmc, 14)}, 3)}),
              group("欠费记录", {form({wide(lsh, 12), wide(sfxm, 14), wide(qfrq, 12), wide(xq, 14), wide(bjrq, 12),
                                       wide(bjje, 14), wide(sbjrq, 12), wide(sbjje, 14), wide(clfs, 12)},
                                      2)}),
              buttons({confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace arrears
