#include "shell/payment_summary.h"

namespace shell {

using namespace kit;

Layout Formzct1::layout() {
  return {.root = column({heading, row({payments, sums}), buttons({back})}),
          .confirm = &back,
          .cancel = &back,
          .width = 1040,
          .height = 560};
}

}  // namespace shell
