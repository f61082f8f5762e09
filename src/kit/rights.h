// The rights by their numbers, and the refusal of those who lack one.
#pragma once

#include "kit/desk.h"

namespace kit {

enum Right {
  SystemSettings = 0,
  Users = 1,
  Initialise = 2,
  StudentAdd = 4,
  StudentModify = 5,
  StudentDelete = 6,
  StudentClear = 7,
  StudentQuery = 8,
  PaymentModify = 9,
  PaymentDelete = 10,
  PaymentClear = 11,
  PaymentQuery = 12,
  ArrearsAdd = 13,
  ArrearsModify = 14,
  ArrearsDelete = 15,
  ArrearsClear = 16,
  ArrearsImport = 17,
  ArrearsQuery = 18,
  GrantRights = 29,
  NewStudent = 30,
  Collect = 31,
  DeleteUnsubmitted = 34,
  SeeAllUnsubmitted = 36,
  WaiveArrears = 37,
  Resume = 40,
  SuspensionDelete = 41,
  SuspensionClear = 42,
  SuspensionQuery = 43,
  Income = 44,
  Recommendation = 70,
  ClassTransfer = 71,
};

inline bool may(const Desk& desk, int right) { return desk.session.Rights.at(static_cast<std::size_t>(right)); }

// The refusal at the moment of use.
void refuse(Desk& desk);

}  // namespace kit
