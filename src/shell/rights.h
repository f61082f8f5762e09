// The rights by their numbers, and gates that stand on them.
#pragma once

#include <vector>

#include "kit/desk.h"
#include "kit/action.h"

namespace shell {

enum Right {
  SystemSettings = 0, Users = 1, Initialise = 2,
  StudentAdd = 4, StudentModify = 5, StudentDelete = 6, StudentClear = 7, StudentQuery = 8,
  PaymentModify = 9, PaymentDelete = 10, PaymentClear = 11, PaymentQuery = 12,
  ArrearsAdd = 13, ArrearsModify = 14, ArrearsDelete = 15, ArrearsClear = 16, ArrearsImport = 17, ArrearsQuery = 18,
  GrantRights = 29, NewStudent = 30, Collect = 31, DeleteUnsubmitted = 34, WaiveArrears = 37, Income = 44,
  Recommendation = 70, ClassTransfer = 71,
};

inline bool may(const kit::Desk& desk, int right) { return desk.session.Rights.at(static_cast<std::size_t>(right)); }

// Enabled only with one of the rights; settled once, when the console loads.
struct Gate {
  kit::Action& action;
  std::vector<int> anyOf;
};

void settle(const kit::Desk& desk, const std::vector<Gate>& gates);

// The refusal at the moment of use.
void refuse(kit::Desk& desk);

}  // namespace shell
