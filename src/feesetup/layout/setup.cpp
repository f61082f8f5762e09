#include "feesetup/setup.h"

namespace feesetup {

kit::Layout Formsz::layout() {
  using namespace kit;
  const auto tab = [](std::string title, RecordDesk& one) {
    return group(std::move(title), {one.shown(), buttons(one.actions())});
  };
  Nodes actions = classStandards.actions();
  for (const Node& one : formStandards.actions()) actions.push_back(one);
  actions.push_back(refresh);
  const Nodes standards{heading("退出前请确认："),
                        basis,
                        note("当(按\"班级\"设置收费标准)被选中时,收费前台将按班级标准调用"),
                        note("当(按\"入学形式\"设置收费标准)被选中时,收费前台将按入学形式标准调用"),
                        row({form({wide(filter, 20)}), stretch()}),
                        classStandards.shown(),
                        formStandards.shown(),
                        buttons(std::move(actions))};
  return {.root = column(
              {tabs({tab("专业", majors), tab("班级", classes), tab("收费项目", items), group("收费标准", standards),
                     tab("成绩分段", bands), group("操作记录", {czjl, buttons({clearLog})}), tab("入学形式", forms)}),
               buttons({back})}),
          .cancel = &back,
          .width = 1000,
          .height = 640};
}

}  // namespace feesetup
