#include "staff/teacher_edit.h"
#include "staff/teacher_query.h"

namespace staff {

using namespace kit;

Layout Formjs1::layout() {
  return {.root = column({group("身份", {form({wide(gh, 13), wide(jsxm, 13), wide(xb, 13),  //
                                               spanning(sfzhm, 2), csrq,                    //
                                               mz, hf, jg,                                  //
                                               zzmm, rdsj, zgxl,                            //
                                               spanning(byxx, 2), zymc,                     //
                                               spanning(hukiu, 3), spanning(jtzz, 3)},
                                              3)}),
                          group("任职", {form({wide(zzzt, 13), wide(zw, 13), wide(gz, 13),  //
                                               zc, zcpdsj, gzjb,                            //
                                               ygxs, spanning(yhkh, 2)},
                                              3)}),
                          group("联系方式", {form({wide(lxdh, 13), wide(sjhm, 13), wide(eml, 13)}, 3)}),
                          buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

Layout Formjs2::layout() {
  return {.root = column({form({wide(gh, 12), wide(jsxm, 12), xb, mz, zzmm, zgxl, zzzt, zw, zc, gz}, 2),
                          note("都不填写时显示全部记录"), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace staff
