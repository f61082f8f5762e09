// A screen with every kind of member, for the tests of the renderer.
#pragma once

#include "kit/screen.h"

namespace support {

class DemoScreen : public kit::Screen {
 public:
  explicit DemoScreen(kit::Desk& all);
  kit::Layout layout() override;

  kit::Field xh{*this, "xh", "学号"}, xm{*this, "xm", "姓名"};
  kit::Field password{*this, "password", "登录密码", kit::Entry::Password};
  kit::Field xb{*this, "xb", "性别", kit::Entry::Choose}, bjmc{*this, "bjmc", "院校及班级名称", kit::Entry::Pick};
  kit::Field rxrq{*this, "rxrq", "入学日期", kit::Entry::Date};
  kit::Field jtzz{*this, "jtzz", "家庭住址", kit::Entry::Shown};
  kit::Field bz{*this, "bz", "备注", kit::Entry::Memo};
  kit::Check paid{*this, "paid", "学费已交"};
  kit::Choice scope{*this, "scope", {"所有班级", "指定专业", "指定班级"}, -1};
  kit::Picture photo{*this, "photo"};
  kit::Frame frame{*this, "frame", "交费记录"};
  kit::List rows_shown{*this,
                       "rows_shown",
                       {{" 学号 ", "", kit::Format::Text, 5},
                        {"姓名", "xm", kit::Format::Text, 5},
                        {"收费项目", "", kit::Format::Text, 8},
                        {"金额", "", kit::Format::Money, 6}}};
  kit::Tree tree{*this, "tree"};
  struct Line {
    kit::Field item, amount;
    kit::Check tick;
  };
  Line first{{*this, "item1", "", kit::Entry::Choose}, {*this, "amount1"}, {*this, "tick1", ""}};
  Line second{{*this, "item2", "", kit::Entry::Choose}, {*this, "amount2"}, {*this, "tick2", ""}};
  kit::Action refresh{*this, "refresh", "刷新", "refresh-cw"}, print{*this, "print", "打印(&P)", "printer"};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};
  kit::Field ready{*this, "ready", "", kit::Entry::Shown};
  kit::Timer timer{*this, "timer", std::chrono::milliseconds(5)};
  std::vector<std::string> log;
};

}  // namespace support
