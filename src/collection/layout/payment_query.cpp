#include "collection/payment_edit.h"
#include "collection/payment_query.h"

namespace collection {

using namespace kit;

Layout Formzctsf31::layout() {
  return {.root = column({queryNode(form({xq, bjmc, xh, xm, sfxm, jffs, from, to, rxxs}, 2)),
                          buttons({scope, clearAll, confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 720};
}

Layout Formzctsf3::layout() {
  return {.root = column({row({group("查询范围", {scope}), group("查询方式", {period})}),
                          group("查询条件", {form({of, xh, xm, from, to, xq, sfxm}), note("（收费项目为空时为所有项目）")}),
                          buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 560};
}

Layout Formzctsf1::layout() {
  return {.root = column({form({lsh, xh, xm, bjmc, xq, jfrq, fpbh, sfxm, je, jffs, sftj, skr}, 2), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 640};
}

}  // namespace collection
