// The student card of the console, as plain texts: what one glance at a student tells.
#pragma once

#include <optional>
#include <string>

#include "store/store.h"

namespace students {

struct StudentCard {
  std::string xh, xm, xb, csrq, sfzhm, zzmm, jtzz, lxdh, sjhm, yzbm, bjmc, rxrq, rxxs, sfbz, zymc, byxx, yhkh;
  std::string loumc, ssbh, cwh, rq;  // the room; empty when the student does not board
  std::string status;                // 在读 or 休学中
  std::string photo;                 // the bytes of the picture
};

std::optional<StudentCard> readStudentCard(store::Store& store, const std::string& xh);  // nothing: no such student

}  // namespace students
