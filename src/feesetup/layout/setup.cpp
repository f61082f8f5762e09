#include "feesetup/setup.h"

namespace feesetup {

kit::Layout Formsz::layout() {
  using namespace kit;
  const Nodes standards{heading("退出前请确认："),
                        basis,
                        note("当(按\"班级\"设置收费标准)被选中时,收费前台将按班级标准调用"),
                        note("当(按\"入学形式\"设置收费标准)被选中时,收费前台将按入学形式标准调用"),
                        row({form({wide(filter, 20)}), stretch()}),
                        sfbzb,
                        sfbzbrxxs,
                        buttons({setStandards, modifyStandards, removeStandards, refresh})};
  return {.root = column(
              {tabs({majors.group("专业"), classes.group("班级"), items.group("收费项目"), group("收费标准", standards),
                     bands.group("成绩分段"), group("操作记录", {czjl, buttons({clearLog})}), forms.group("入学形式")}),
               buttons({back})}),
          .cancel = &back,
          .width = 1000,
          .height = 640};
}

}  // namespace feesetup
