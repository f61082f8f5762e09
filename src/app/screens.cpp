#include "app/screens.h"

#include "collection/fee_window.h"
#include "feesetup/desk_settings.h"
#include "feesetup/setup.h"
#include "shell/about.h"
#include "shell/console.h"
#include "shell/login.h"
#include "shell/splash.h"
#include "students/student_edit.h"
#include "students/student_view.h"
#include "upkeep/first_run.h"
#include "upkeep/password_change.h"
#include "upkeep/user_edit.h"
#include "upkeep/user_list.h"
#include "upkeep/user_rights.h"

namespace app {
namespace {

template <class S>
Entry screen(const char* name) {
  return {name, [](kit::Desk& desk) { return std::make_unique<S>(desk); }};
}

}  // namespace

const std::vector<Entry>& screens() {
  static const std::vector<Entry> all = {
      screen<shell::Form1>("Form1"),
      screen<shell::Formcsh5>("Formcsh5"),
      screen<shell::Formcsh2>("Formcsh2"),
      screen<shell::Formzct>("Formzct"),
      screen<upkeep::Formyhxx4>("Formyhxx4"),
      screen<upkeep::Formyhxx>("Formyhxx"),
      screen<upkeep::Formyhxx1>("Formyhxx1"),
      screen<upkeep::Formyhxx2>("Formyhxx2"),
      screen<upkeep::Formyhxx3>("Formyhxx3"),
      screen<students::Formzctxs>("Formzctxs"),
      screen<students::Formzctxsll>("Formzctxsll"),
      screen<feesetup::Formsz>("Formsz"),
      screen<feesetup::Formszqt>("Formszqt"),
      screen<collection::Formzctsf4>("Formzctsf4"),
  };
  return all;
}

const qt::Views& views() {
  static const qt::Views all;
  return all;
}

}  // namespace app
