// Deletes fee standards by class.
#pragma once

#include "feesetup/standard_delete.h"

namespace feesetup {

class Formszsfbz1 : public StandardDelete {  // 记录删除
 public:
  explicit Formszsfbz1(kit::Desk& desk);
};

}  // namespace feesetup
