#include "students/student_query.h"

namespace students {

using namespace kit;

Layout Formzctxscx1::layout() {
  const Node conditions =
      form({zymc, bjmc, xh, xm, xb, mz, zzmm, rxxs, spanning(byxx, 2), csrq.node(), rxrq.node()}, 2);
  return {.root = column({queryNode(conditions), buttons({single, clearAll, confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 760};
}

Layout Formzctxscx::layout() {
  return {.root = column({form({wide(way, 14)}), hint, form({value, from, to}), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 460};
}

}  // namespace students
