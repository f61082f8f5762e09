// The row that a screen was opened for: the one its grid stands on.
#pragma once

#include "kit/desk.h"

namespace feesetup {

inline store::RecordSet& editedRow(kit::Desk& desk) {
  if (!desk.session.edited)
    throw store::StoreError(store::Fault::RowGone, "没有选定的记录，请先在列表中选定一条记录！");
  return *desk.session.edited;
}

}  // namespace feesetup
