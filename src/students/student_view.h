// A student's record to read; the notes alone can be written here.
#pragma once

#include "kit/screen.h"

namespace students {

class Formzctxsll : public kit::Screen {  // 学生学籍资料浏览
 public:
  explicit Formzctxsll(kit::Desk& desk, std::int64_t row = 0);
  void load() override;
  kit::Layout layout() override;
  bool mayClose() override;

  kit::Field xh{*this, "xh", "学号", kit::Entry::Shown};
  kit::Field xm{*this, "xm", "姓名", kit::Entry::Shown};
  kit::Field xb{*this, "xb", "性别", kit::Entry::Shown};
  kit::Field bjmc{*this, "bjmc", "院校班级", kit::Entry::Shown};
  kit::Field csrq{*this, "csrq", "出生日期", kit::Entry::Shown};
  kit::Field rxrq{*this, "rxrq", "入学日期", kit::Entry::Shown};
  kit::Field sfzhm{*this, "sfzhm", "身份证号", kit::Entry::Shown};
  kit::Field zzmm{*this, "zzmm", "政治面貌", kit::Entry::Shown};
  kit::Field lxdh{*this, "lxdh", "联系电话", kit::Entry::Shown};
  kit::Field sjhm{*this, "sjhm", "手机号码", kit::Entry::Shown};
  kit::Field rxxs{*this, "rxxs", "入学形式", kit::Entry::Shown};
  kit::Field yzbm{*this, "yzbm", "邮政编码", kit::Entry::Shown};
  kit::Field jtzz{*this, "jtzz", "家庭住址", kit::Entry::Shown};
  kit::Field mz{*this, "mz", "民族", kit::Entry::Shown};
  kit::Field eml{*this, "eml", "电子邮箱", kit::Entry::Shown};
  kit::Field sfbz{*this, "sfbz", "学费标准", kit::Entry::Shown};
  kit::Field zymc{*this, "zymc", "所学专业", kit::Entry::Shown};
  kit::Field byxx{*this, "byxx", "原毕业校", kit::Entry::Shown};
  kit::Field yhkh{*this, "yhkh", "信用卡号", kit::Entry::Shown};
  kit::Field bz{*this, "bz", "备注", kit::Entry::Memo};
  kit::Picture xp{*this, "xp"};
  kit::Action back{*this, "back", "返回", "arrow-left"};

 private:
  void saveNotes();

  const std::int64_t row_;
  std::string storedNotes_;
  bool refused_ = false;  // the notes could not be saved once
};

}  // namespace students
