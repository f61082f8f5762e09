#include "collection/submission.h"

namespace collection {

kit::Layout Formzctsf9::layout() {
  using namespace kit;
  return {.root = column({list, summary, buttons({submit, print, all, back})}),
          .cancel = &back,
          .width = 1000,
          .height = 560};
}

}  // namespace collection
