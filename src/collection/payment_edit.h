// Corrects or deletes one payment in the back office, whatever its submit mark says.
#pragma once

#include "kit/record_edit.h"

namespace collection {

class Formzctsf1 : public kit::RecordEdit {  // 学生交费记录编辑
 public:
  explicit Formzctsf1(kit::Desk& desk, const kit::Editing& editing = {});
  kit::Layout layout() override;

  kit::Field lsh{*this, "lsh", "记录标识号", kit::Entry::Shown}, xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名"},
      bjmc{*this, "bjmc", "班级"}, xq{*this, "xq", "学年学期", kit::Entry::Pick},
      jfrq{*this, "jfrq", "交费日期", kit::Entry::Date}, fpbh{*this, "fpbh", "收据编号"},
      sfxm{*this, "sfxm", "收费项目", kit::Entry::Pick}, je{*this, "je", "收费金额"},
      jffs{*this, "jffs", "交费方式", kit::Entry::Pick}, sftj{*this, "sftj", "提交"},
      skr{*this, "skr", "收款人", kit::Entry::Pick};

 private:
  std::vector<Bound> bound() override;
  std::vector<kit::Rule> rules() override;
  Words words() override;
  void shown(store::RecordSet& row) override;
};

}  // namespace collection
