// The about box.
#pragma once

#include "kit/screen.h"

namespace shell {

class Formcsh2 : public kit::Screen {  // 关于...
 public:
  explicit Formcsh2(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field product{*this, "product", "", kit::Entry::Shown};
  kit::Field version{*this, "version", "版本", kit::Entry::Shown};
  kit::Field date{*this, "date", "日期", kit::Entry::Shown};
  kit::Field folder{*this, "folder", "数据文件夹", kit::Entry::Shown};
  kit::Action cancel{*this, "cancel", "关闭", "x"};
};

}  // namespace shell
