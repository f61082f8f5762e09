#include "arrears/arrears_delete.h"

namespace arrears {

kit::Layout Formqfcl5::layout() {
  using namespace kit;
  return {.root = column({group("请选择您要怎样删除 ... ", {option}), buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel,
          .width = 360};
}

}  // namespace arrears
