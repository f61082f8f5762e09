// The rights by their numbers, and the refusal of those who lack one.
#pragma once

#include <vector>

#include "kit/action.h"
#include "kit/desk.h"

namespace kit {

// clang-format off
enum Right {
  SystemSettings = 0, Users = 1, Initialise = 2, GrantRights = 29,
  StudentAdd = 4, StudentModify = 5, StudentDelete = 6, StudentClear = 7, StudentQuery = 8,
  PaymentModify = 9, PaymentDelete = 10, PaymentClear = 11, PaymentQuery = 12,
  ArrearsAdd = 13, ArrearsModify = 14, ArrearsDelete = 15, ArrearsClear = 16, ArrearsImport = 17, ArrearsQuery = 18,
  GradeAdd = 19, GradeModify = 20, GradeDelete = 21, GradeClear = 22, GradeQuery = 23,
  GraduateImport = 24, GraduateModify = 25, GraduateDelete = 26, GraduateClear = 27, GraduateQuery = 28,
  Recommendation = 70,
  TeacherAdd = 32, TeacherModify = 33, TeacherDelete = 3, TeacherClear = 35, TeacherQuery = 38,
  Suspend = 39, Resume = 40, SuspensionDelete = 41, SuspensionClear = 42, SuspensionQuery = 43,
  AssetSettings = 45, AssetAdd = 46, AssetModify = 47, AssetDelete = 48, AssetClear = 49, AssetQuery = 50,
  DormitorySettings = 51, DormitoryAdd = 52, DormitoryModify = 53, DormitoryDelete = 54, DormitoryClear = 55,
  DormitoryQuery = 56,
  PaySettings = 57, PayAdd = 58, PayModify = 59, PayDelete = 60, PayClear = 61, PayQuery = 62,
  LibrarySettings = 63, LibraryAdd = 64, LibraryModify = 65, LibraryDelete = 66, LibraryClear = 67, Lending = 68,
  LibraryQuery = 69,
  ClassTransfer = 71,
  NewStudent = 30, WaiveArrears = 37, Collect = 31, SeeAllUnsubmitted = 36, DeleteUnsubmitted = 34, Income = 44,
};
// clang-format on
constexpr int lastRight = 71;  // 72 to 99 stand in the table without a meaning

inline bool may(const Desk& desk, int right) { return desk.session.Rights.at(static_cast<std::size_t>(right)); }

bool mayAny(const Desk& desk, const std::vector<int>& anyOf);  // also when none is asked for

// An action that is enabled only with one of the rights.
struct Gate {
  Action& action;
  std::vector<int> anyOf;
};
void enableByRights(const Desk& desk, const std::vector<Gate>& gates);

// The refusal at the moment of use.
void refuse(Desk& desk);

}  // namespace kit
