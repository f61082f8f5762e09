#include "shell/about.h"
#include "shell/login.h"
#include "shell/splash.h"

namespace shell {

using namespace kit;

Layout Form1::layout() {
  return {.root = column({stretch(), product, state, stretch(), buttons({retry, choose, leave})}),
          .confirm = &retry,
          .cancel = &leave,
          .width = 560,
          .height = 320,
          .frameless = true};
}

// The panel stands at the lower right over the background picture; login_view places it.
Layout Formcsh5::layout() {
  return {.root = custom("login", {background, group(panel, {school, form({wide(yhxm, 12), wide(yhmm, 12)}), wait,
                                                             buttons({login, cancel})})}),
          .confirm = &login,
          .cancel = &cancel,
          .frameless = true,
          .maximised = true};
}

Layout Formcsh2::layout() {
  return {.root = column({product, form({version, date, folder}), buttons({cancel})}),
          .confirm = &cancel,
          .cancel = &cancel,
          .width = 520};
}

}  // namespace shell
