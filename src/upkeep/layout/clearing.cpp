#include "upkeep/clearing.h"

namespace upkeep {

kit::Layout Formcsh3::layout() {
  using namespace kit;
  return {.root = column({
              note("系统初始化将清空班级、学生、收费、欠费、成绩、教师、工资、住宿、物资、图书以及用户等全部资料，"
                   "清空后不可恢复。请先备份数据库，并确认其他计算机上无人使用本系统。"),
              buttons({confirm, cancel}),
          }),
          .cancel = &cancel,
          .width = 480};
}

}  // namespace upkeep
