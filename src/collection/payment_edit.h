// Corrects or deletes one payment in the back office, whatever its submit mark says.
#pragma once

#include "kit/screen.h"

namespace collection {

class Formzctsf1 : public kit::Screen {  // 学生交费记录编辑
 public:
  explicit Formzctsf1(kit::Desk& desk);
  void load() override;  // the session's payment_selection, to modify or to delete
  kit::Layout layout() override;

  kit::Field lsh{*this, "lsh", "记录标识号", kit::Entry::Shown}, xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名"},
      bjmc{*this, "bjmc", "班级"}, xq{*this, "xq", "学年学期", kit::Entry::Pick},
      jfrq{*this, "jfrq", "交费日期", kit::Entry::Date}, fpbh{*this, "fpbh", "收据编号"},
      sfxm{*this, "sfxm", "收费项目", kit::Entry::Pick}, je{*this, "je", "收费金额"},
      jffs{*this, "jffs", "交费方式", kit::Entry::Pick}, sftj{*this, "sftj", "提交"},
      skr{*this, "skr", "收款人", kit::Entry::Pick};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 private:
  std::vector<kit::Field*> fields() { return {&xh, &xm, &bjmc, &xq, &jfrq, &fpbh, &sfxm, &je, &sftj, &skr, &jffs}; }
  bool valid();
  void modify();
  void remove();
};

}  // namespace collection
