#include "feesetup/edit_screen.h"

namespace feesetup {

kit::Layout EditScreen::layout() {
  kit::Nodes fields;
  for (const Entry& entry : entries()) fields.push_back(kit::wide(entry.field, entry.width));
  return {.root = kit::column({kit::form(std::move(fields)), kit::buttons({confirm, cancel})}),
          .confirm = &confirm,
          .cancel = &cancel};
}

}  // namespace feesetup
