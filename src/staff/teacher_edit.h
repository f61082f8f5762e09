// A teacher's file, to be added, changed or deleted. A changed number or name goes on into the pay sheets.
#pragma once

#include "kit/record_edit.h"

namespace staff {

class Formjs1 : public kit::RecordEdit {  // 教师档案信息编辑
 public:
  explicit Formjs1(kit::Desk& desk, const kit::Editing& editing = {});
  kit::Layout layout() override;

  kit::Field gh{*this, "gh", "工号"}, jsxm{*this, "jsxm", "姓名"}, xb{*this, "xb", "性别", kit::Entry::Pick},
      sfzhm{*this, "sfzhm", "身份证号码"}, csrq{*this, "csrq", "出生日期", kit::Entry::Date},
      mz{*this, "mz", "民族", kit::Entry::Pick}, hf{*this, "hf", "婚否", kit::Entry::Pick},
      zzmm{*this, "zzmm", "政治面貌", kit::Entry::Pick}, rdsj{*this, "rdsj", "入党时间", kit::Entry::Date},
      jtzz{*this, "jtzz", "家庭住址"}, hukiu{*this, "hukiu", "户口所在地"}, jg{*this, "jg", "籍贯"},
      zgxl{*this, "zgxl", "最高学历"}, byxx{*this, "byxx", "毕业学校"}, zymc{*this, "zymc", "所学专业"},
      zzzt{*this, "zzzt", "在职状态"}, zw{*this, "zw", "行政职务"}, zc{*this, "zc", "技术职称", kit::Entry::Pick},
      zcpdsj{*this, "zcpdsj", "评定职称日期", kit::Entry::Date}, gzjb{*this, "gzjb", "工资级别"},
      gz{*this, "gz", "工种"}, ygxs{*this, "ygxs", "用工形式"}, lxdh{*this, "lxdh", "联系电话"},
      sjhm{*this, "sjhm", "手机号码"}, eml{*this, "eml", "电子邮箱"}, yhkh{*this, "yhkh", "信用卡号"};

 private:
  std::vector<kit::Rule> rules() override;
  std::vector<kit::Rule> guards() override;
  Words words() override;
  void propose() override;
  void adding(store::RecordSet& row) override;
  void modifying(store::RecordSet& row) override;

  bool wrongIdentity() const;
  std::vector<Question> merging();
};

}  // namespace staff
