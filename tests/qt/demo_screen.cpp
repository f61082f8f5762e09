#include "demo_screen.h"

namespace support {

DemoScreen::DemoScreen(kit::Desk& all) : Screen(all, "DemoScreen", "学生资料示例") {
  const auto logs = [this](const char* what) { return [this, what] { log.push_back(what); }; };
  xh.onFocus(logs("xh focus"));
  xh.onLeave(logs("xh leave"));
  bjmc.onDrop([this] { bjmc.setChoices({"计算机一班", "计算机二班", "会计一班"}); });
  bjmc.onPick(logs("bjmc pick"));
  rxrq.onPick(logs("rxrq pick"));
  paid.onChange(logs("paid"));
  scope.onChange(logs("scope"));
  photo.onDoubleClick(logs("photo"));
  rows_shown.onSelect(logs("select"));
  rows_shown.onDoubleClick(logs("open"));
  tree.onClick(logs("tree"));
  refresh.onPress(logs("refresh"));
  print.onPress(logs("print"));
  confirm.onPress(logs("confirm"));
  cancel.onPress([this] { close(); });
  rows_shown.menu = {&refresh, nullptr, &print};
  xb.setChoices({"男", "女"});
  tree.set({{"z1", "计算机应用", {{"b1", "计算机一班", {}}, {"b2", "计算机二班", {}}}}});
  for (int i = 0; i < 40; ++i)
    rows_shown.addRow(
        {std::to_string(1001 + i), i % 2 ? "王小明" : "欧阳娜娜", "学费及住宿费", std::to_string(1200 + i) + ".00"});
  jtzz.set("澜岳市东湖区人民路一百二十八号幸福家园小区三号楼二单元一千二百零一室");
  for (Line* line : {&first, &second}) {
    line->item.setChoices({"学费", "住宿费", "书本费"});
    line->amount.rightAligned = true;
    line->amount.set("1200.00");
  }
  second.amount.setColour(kit::Colour{200, 0, 0});
  paid.setTip("勾选后不再催交");
  confirm.setTip("保存本页的资料");
  refresh.enable(false);
  ready.set("就绪");
}

kit::Layout DemoScreen::layout() {
  using namespace kit;
  return {.root = column({
              row({
                  column({group("基本资料",
                                {form({wide(xh, 8), wide(xm, 8), password, xb, bjmc, rxrq, spanning(jtzz, 2)}, 2)}),
                          group("范围", {row({scope, stretch(), paid})})}),
                  group("备注", {bz}),
                  group("照片", {photo}),
              }),
              row({tree, group(frame, {rows_shown, row({refresh, stretch()})}),
                   kit::lines({"收费项目", "金额", "选择"},
                              {row({wide(first.item, 10), wide(first.amount, 8), first.tick}),
                               row({wide(second.item, 10), wide(second.amount, 8), second.tick})})}),
              buttons({print, confirm, cancel}),
          }),
          .confirm = &confirm,
          .cancel = &cancel,
          .menus = {{"文件(&F)", {&print, nullptr, &cancel}}},
          .toolbar = {&print, &refresh},
          .status = {&ready}};
}

}  // namespace support
