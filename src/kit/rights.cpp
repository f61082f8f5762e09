#include "kit/rights.h"

namespace kit {

void refuse(Desk& desk) { desk.person.tell(Box::Information, "请您先请示授权再进行此操作！      ", "权限越界"); }

}  // namespace kit
