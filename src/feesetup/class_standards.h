// A fee item's standard is set here for all classes, for those of one major or for one class.
#pragma once

#include "kit/screen.h"

namespace feesetup {

class Formszsfbz : public kit::Screen {  // 收费标准设置
 public:
  // written: what is done after each item, while the screen stays open for the next one.
  explicit Formszsfbz(kit::Desk& desk, kit::Handler written = {});
  void load() override;
  kit::Layout layout() override;

  kit::Field xq{*this, "xq", "学年学期", kit::Entry::Pick};
  kit::Field sfxmmc{*this, "sfxmmc", "收费项目", kit::Entry::Choose};
  kit::Field sfxmbh{*this, "sfxmbh", "收费项目编号", kit::Entry::Shown};
  kit::Field je{*this, "je", "收费金额"};
  kit::Choice scope{*this, "scope", {"所有班级", "适用于指定专业所属各班级", "仅适用于指定班级"}};
  kit::Field selection{*this, "selection", "", kit::Entry::Pick};
  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  void pickItem();
  void showScope();
  bool valid();
  void save();
  long long write(const store::Sql& replaced, bool mayReplace, const store::Sql& classes);
  const kit::Handler written_;
};

}  // namespace feesetup
