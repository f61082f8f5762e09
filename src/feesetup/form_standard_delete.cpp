#include "feesetup/form_standard_delete.h"

namespace feesetup {
namespace {
const StandardDeletion words{"select * from sfbzbrxxs", " where rxxs='", "删除选定入学形式的所有记录",
                             "您确认是要删除选定入学形式的所有记录吗 ？    ", "选定入学形式的记录已删除 ！     "};
}

Formszsfbz4::Formszsfbz4(kit::Desk& all) : StandardDelete(all, "Formszsfbz4", words) {}

}  // namespace feesetup
