#include "students/suspension_edit.h"
#include "students/suspension_list.h"
#include "students/suspension_query.h"

namespace students {

using namespace kit;

Layout Formxxfk1::layout() {
  return {.root = column({what, form({wide(bjmc, 18), wide(xm, 18), xh, day}), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

Layout Formxxfk2::layout() {
  return {.root = column(
              {form({wide(bjmc, 18), wide(xm, 18)}), note("都不填写时显示全部记录"), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace students
