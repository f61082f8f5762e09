// The school's name, which windows, receipts and reports bear: one for the whole office.
#pragma once

#include "kit/screen.h"

namespace upkeep {

constexpr const char* usualSchoolName = "澜岳学校";  // until the office has set its own

std::string schoolName(store::Store& store);

class Formxxmc : public kit::Screen {  // 学校名称设置
 public:
  explicit Formxxmc(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Field xxmc{*this, "xxmc", "学校名称"};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  void save();
  std::string shown_;
};

}  // namespace upkeep
