#include "app/office.h"

#include <QApplication>

#include "app/views.h"
#include "kit/fault.h"
#include "shell/splash.h"
#include "shell/start.h"

namespace app {

Office::Office(const DataFolder& folder)
    : store_(folder.path),
      person_(shell::productTitle),
      navigator_(app::views()),
      desktop_(folder.path, folder.chosen) {
  store_.onWait = [this](bool waiting) { progress_.waiting(waiting); };
}

void Office::tell(const std::exception_ptr& fault) {
  progress_.hide();
  person_.tell(kit::Box::Stop, kit::faultText(fault, kit::savedPerhaps), kit::wrongInput);
}

int Office::run() {
  int status = 0;
  do {
    session_ = {};
    desk_.navigator.stand<shell::Form1>(desk_);
    status = QApplication::exec();
    // The first-run screen leads nowhere by itself: with its user made, the program starts anew for the login.
  } while (status == 0 && session_.first_user_added);
  return status;
}

}  // namespace app
