#include "staff/teacher_query.h"

namespace staff {

Formjs2::Formjs2(kit::Desk& all) : Screen(all, "Formjs2", "教师档案信息查询设置") {
  for (kit::Field* field : fields_)
    field->offers(store::Sql("select ") + store::Sql::column(field->name) + " from js group by " +
                      store::Sql::column(field->name),
                  field->name);
  confirm.onPress([this] {
    std::vector<kit::Condition> asked;
    for (const kit::Field* field : fields_) asked.push_back(kit::equals(field->name, field->trimmed()));
    answer = kit::Filter{kit::chain(asked)};
    close();
  });
  cancel.onPress([this] { close(); });
}

}  // namespace staff
