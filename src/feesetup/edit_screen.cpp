#include "feesetup/edit_screen.h"

namespace feesetup {

EditScreen::EditScreen(kit::Desk& all, std::string own, std::string words)
    : Screen(all, std::move(own), std::move(words)) {
  confirm.onPress([this] { act(); });
  cancel.onPress([this] { close(); });
}

void EditScreen::load() {
  mode_ = desk.session.EditMode;
  if (mode_ == kit::Mode::Add) return propose();
  for (const Entry& entry : entries()) {
    entry.field.set(row().get(entry.column).trimmed());
    // What is to be deleted is shown, not edited: the guards ask for the row as it stands.
    if (mode_ == kit::Mode::Delete) entry.field.enable(false);
  }
  remember();
  if (mode_ == kit::Mode::Delete) confirm.focus();
}

void EditScreen::act() {
  if (!kit::holds(desk.person, rules())) return;
  switch (mode_) {
    case kit::Mode::Add: return add();
    case kit::Mode::Modify: return modify();
    case kit::Mode::Delete: return remove();
  }
}

}  // namespace feesetup
