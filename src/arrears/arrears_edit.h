// Corrects one arrears row, its state included.
#pragma once

#include "kit/record_edit.h"

namespace arrears {

class Formqf : public kit::RecordEdit {  // 欠费信息编辑
 public:
  explicit Formqf(kit::Desk& desk, const kit::Editing& editing = {});
  void load() override;
  kit::Layout layout() override;

  kit::Field xh{*this, "xh", "学号", kit::Entry::Shown};
  kit::Field xm{*this, "xm", "姓名", kit::Entry::Shown};
  kit::Field bjmc{*this, "bjmc", "班级", kit::Entry::Shown};
  kit::Field lsh{*this, "lsh", "记录标识号"};
  kit::Field sfxm{*this, "sfxm", "收费项目"};
  kit::Field qfrq{*this, "qfrq", "欠费日期", kit::Entry::Date};
  kit::Field xq{*this, "xq", "学年学期"};
  kit::Field bjrq{*this, "bjrq", "补交日期", kit::Entry::Date};
  kit::Field bjje{*this, "bjje", "补交金额"};
  kit::Field sbjrq{*this, "sbjrq", "实交日期", kit::Entry::Date};
  kit::Field sbjje{*this, "sbjje", "实交金额"};
  kit::Field clfs{*this, "clfs", "处理进度", kit::Entry::Pick};

 private:
  std::vector<Bound> bound() override;
  Words words() override {
    return {.modify = {}, .remove = {}, .added = "", .modified = "记录修改成功！     ", .removed = ""};
  }
  void shown(store::RecordSet&) override { sfxm.focus(); }
  void modify() override;
  void modifying(store::RecordSet& row) override;
  bool valid();
};

}  // namespace arrears
