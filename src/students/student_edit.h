// The edit screen of the register: adds, changes and deletes a student.
#pragma once

#include <utility>
#include <vector>

#include "kit/editing.h"
#include "kit/screen.h"
#include "students/student_records.h"

namespace students {

class Formzctxs : public kit::Screen {  // 学生学籍资料编辑
 public:
  using Collect = std::function<void(const std::string& current_xh)>;
  // collect: opens the fee window for a student who has just been added.
  explicit Formzctxs(kit::Desk& desk, const kit::Editing& editing = {}, Collect collect = {});
  void load() override;
  kit::Layout layout() override;

  kit::Field xh{*this, "xh", "学号"};
  kit::Field xm{*this, "xm", "姓名"};
  kit::Field xb{*this, "xb", "性别", kit::Entry::Pick};
  kit::Field bjmc{*this, "bjmc", "院校及班级名称", kit::Entry::Pick};
  kit::Field mz{*this, "mz", "民族", kit::Entry::Pick};
  kit::Field csrq{*this, "csrq", "出生日期", kit::Entry::Date};
  kit::Field sfzhm{*this, "sfzhm", "身份证号码"};
  kit::Field rxrq{*this, "rxrq", "入学日期", kit::Entry::Date};
  kit::Field zzmm{*this, "zzmm", "政治面貌", kit::Entry::Pick};
  kit::Field lxdh{*this, "lxdh", "固定电话"};
  kit::Field sjhm{*this, "sjhm", "手机号码"};
  kit::Field rxxs{*this, "rxxs", "入学形式", kit::Entry::Pick};
  kit::Field sfbz{*this, "sfbz", "收费标准"};
  kit::Field jtzz{*this, "jtzz", "家庭住址"};
  kit::Field yzbm{*this, "yzbm", "邮政编码"};
  kit::Field eml{*this, "eml", "电子邮箱"};
  kit::Field byxx{*this, "byxx", "原毕业校"};
  kit::Field yhkh{*this, "yhkh", "信用卡号"};
  kit::Field zymc{*this, "zymc", "所学专业"};
  kit::Field bz{*this, "bz", "备注", kit::Entry::Memo};
  std::string xtbh;  // the system number, not shown

  kit::Picture xp{*this, "xp"};
  kit::Action choosePhoto{*this, "choosePhoto", "照片编辑", "image"};
  kit::Check xssf{*this, "xssf", "录完学籍后自动调用收费窗口"};
  kit::Action confirm{*this, "confirm", "添加", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};
  std::optional<std::string> answer;  // current_xh: the number of the student who was added last

 private:
  std::vector<std::pair<StudentText, kit::Field*>> entries();
  void wirePickLists();
  void show(const Student& student, const std::string& photo);
  Student typed();
  void takeClass();
  void takeIdentity();
  void pickPhoto();

  void add();
  void showNext(const std::string& number);
  void change();
  void remove();
  bool accepted(const std::optional<Refusal>& refusal);
  void offerNumber();

  const kit::Editing editing_;
  const kit::Mode EditMode = editing_.EditMode;
  const Collect collect_;
  Student former_;          // as loaded, for change and delete
  std::string proposal_;    // offered when the number has a wrong length
  std::string takenClass_;  // the class that the major and the system number stand for
  std::string sex_;         // the last valid one: anything else is taken back
  Photo photo_;
};

}  // namespace students
