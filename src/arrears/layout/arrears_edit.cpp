#include "arrears/arrears_edit.h"

namespace arrears {

kit::Layout Formqf::layout() {
  using namespace kit;
  Nodes student, debt;
  for (const Bound& one : bound()) (student.size() < 3 ? student : debt).push_back(wide(one.field, one.width));
  return {.root = column({group("学生", {form(std::move(student), 3)}), group("欠费记录", {form(std::move(debt), 2)}),
                          buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace arrears
