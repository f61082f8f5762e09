#include "app/views.h"

#include "shell/view/shell_views.h"

namespace app {

const qt::Views& views() {
  static const qt::Views all{{"console", shell::buildConsole}, {"login", shell::buildLogin}};
  return all;
}

}  // namespace app
