#include "shell/loading.h"

#include "shell/console.h"
#include "shell/login.h"

namespace shell {

void Formcsh1::proceed() {
  desk.navigator.stand<Formzct>(desk);
  desk.navigator.closeStanding<Formcsh5>();
}

}  // namespace shell
