// The student card of the console, as plain texts: what one glance at a student tells.
#pragma once

#include <string>

#include "store/store.h"

namespace students {

struct StudentCard {
  bool found = false;  // without a row all texts are empty
  std::string xh, xm, xb, csrq, sfzhm, zzmm, jtzz, lxdh, sjhm, yzbm, bjmc, rxrq, rxxs, sfbz, zymc, byxx, yhkh;
  std::string loumc, ssbh, cwh, rq;  // the room; empty when the student does not board
  std::string status;                // 在读 or 休学中
  std::string photo;                 // the bytes of the picture
};

StudentCard readStudentCard(store::Store& store, const std::string& xh);

}  // namespace students
