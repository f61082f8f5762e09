// All that one student has paid, and the sums of it by term and fee item.
#pragma once

#include "kit/screen.h"

namespace shell {

class Formzct1 : public kit::Screen {  // 交费信息统计
 public:
  explicit Formzct1(kit::Desk& desk, std::string xh = "");
  void load() override;
  kit::Layout layout() override;
  void doubleClicked() override { close(); }

  const std::string xh;  // whose payments they are

  kit::Field heading{*this, "heading", "", kit::Entry::Shown};
  kit::List payments{*this,
                     "payments",
                     {{" 记录标识号", "lsh", kit::Format::Text, 9},
                      {" 交费日期", "jfrq", kit::Format::Date, 7},
                      {" 交费项目名称", "sfxm", kit::Format::Text, 8},
                      {" 交费金额", "je", kit::Format::Padded, 6}}};
  kit::List sums{*this,
                 "sums",
                 {{" 交费所属学年学期", "", kit::Format::Text, 11},
                  {" 交费项目名称", "", kit::Format::Text, 8},
                  {" 交费金额", "", kit::Format::Padded, 6},
                  {"次数", "", kit::Format::Text, 3}}};
  kit::Action back{*this, "back", "返回", "arrow-left"};

 private:
  void addSums();
};

}  // namespace shell
