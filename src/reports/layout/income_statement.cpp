#include "reports/income_statement.h"

namespace reports {

using namespace kit;

Layout Formkh1::layout() { return {.root = column({notice}), .width = 420, .height = 110, .frameless = true}; }

Layout Formkh::layout() {
  return {.root = column({
              row({previous, stretch(), period, stretch(), next}),
              list,
              form({month_total, year_total}, 2),
              buttons({print, back}),
          }),
          .confirm = &print,
          .cancel = &back,
          .width = 640,
          .height = 520};
}

}  // namespace reports
