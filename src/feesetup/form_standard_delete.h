// Deletes fee standards by enrolment form.
#pragma once

#include "feesetup/standard_delete.h"

namespace feesetup {

class Formszsfbz4 : public StandardDelete {  // 记录删除
 public:
  explicit Formszsfbz4(kit::Desk& desk);
};

}  // namespace feesetup
