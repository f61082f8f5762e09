#include "collection/fee_window_wait.h"

namespace collection {

void Formzctsf6::proceed() {
  close();  // the fee window stands until the payment is done; the notice must not
  open<Formzctsf4>(given_);
}

}  // namespace collection
