#include "students/suspension_query.h"

namespace students {

Formxxfk2::Formxxfk2(kit::Desk& all) : Screen(all, "Formxxfk2", "休学复课记录查询设置") {
  bjmc.offers("select bjmc from xxfk group by bjmc", "bjmc");
  xm.offers("select * from xxfk  order by xh", "xm");
  confirm.onPress([this] {
    answer = kit::Filter{kit::chain({kit::equals("bjmc", bjmc.trimmed()), kit::equals("xm", xm.trimmed())})};
    close();
  });
  cancel.onPress([this] { close(); });
}

}  // namespace students
