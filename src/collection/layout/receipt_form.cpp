#include "collection/receipt_form.h"

namespace collection {

kit::Layout Formzctsf2::layout() {
  using namespace kit;
  Nodes rows;
  for (std::size_t line = 0; line < Labelsfxm.size(); ++line)
    rows.push_back(row({wide(Labelsfxm[line], 20), wide(Labelje[line], 8)}));
  return {.root = column({row({Labelfpbh, stretch(), Labeljfrq, stretch(), Labeljffs}),
                          row({Labelxm, stretch(), Labelxh, stretch(), Labelbjmc, stretch(), Labelxq}),
                          kit::lines({"收费项目", "金额"}, std::move(rows)), row({words, stretch(), total}),
                          row({stretch(), cashier, notice})})};
}

}  // namespace collection
