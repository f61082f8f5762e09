#include "feesetup/class_standard_delete.h"

namespace feesetup {
namespace {
const StandardDeletion words{"select * from sfbzb", " where bjmc='", "删除选定班级的所有记录",
                             "您确认是要删除选定班级的所有记录吗 ？    ", "选定班级的记录已删除 ！     "};
}

Formszsfbz1::Formszsfbz1(kit::Desk& all) : StandardDelete(all, "Formszsfbz1", words) {}

}  // namespace feesetup
