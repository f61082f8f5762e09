#include "collection/fee_window_wait.h"

namespace collection {

kit::Layout Formzctsf6::layout() {
  return {.root = kit::column({kit::heading("正在加载相关设置，请稍等...")}), .frameless = true};
}

}  // namespace collection
