#include "collection/payment_query.h"

#include "collection/payment_edit.h"

namespace collection {

using namespace kit;

Layout Formzctsf31::layout() {
  return {.root = column({queryNode(form({xq, bjmc, xh, xm, sfxm, jffs, from, to, rxxs, skr}, 2)),
                          buttons({scope, clearAll, confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 720};
}

Layout Formzctsf1::layout() {
  return {.root = column(
              {form({lsh, xh, xm, bjmc, xq, jfrq, fpbh, sfxm, je, jffs, sftj, skr}, 2), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 640};
}

}  // namespace collection
