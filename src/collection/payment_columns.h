// How the front desk lists payments: on the card of a student and before they are submitted.
#pragma once

#include "kit/list.h"

namespace collection {

extern const std::vector<kit::ListColumn> paymentColumns;

}  // namespace collection
