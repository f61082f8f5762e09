// 系统初始化: empties every data table, for a school that begins again.
#pragma once

#include "kit/loading_screen.h"

namespace upkeep {

class Formcsh3 : public kit::Screen {  // 系统初始化
 public:
  explicit Formcsh3(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Action confirm{*this, "confirm", "确认", "trash-2"}, cancel{*this, "cancel", "撤销", "x"};
};

// Empties one table after the other as soon as it has been painted; nothing stops it but a fault, and then the tables
// before the fault stay empty.
class Formcsh4 : public kit::LoadingScreen {  // 系统初始化的清空过程
 public:
  explicit Formcsh4(kit::Desk& desk);

 private:
  void proceed() override;
  void emptyTables();
};

}  // namespace upkeep
