// The front-desk settings. Each tick and choice is stored as soon as it is made, and the open session follows at once.
#pragma once

#include "kit/screen.h"

namespace feesetup {

class Formszqt : public kit::Screen {  // 收费前台设置总控界面
 public:
  explicit Formszqt(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  // Each member carries the name of its column.
  kit::Check dysz{*this, "dysz", "打印收据"};
  kit::Check dybzok{*this, "dybzok", "打印收据时，打印欠费信息到收据备注栏"};
  kit::Choice fpys{*this, "fpys", {"标准样式一（没有打印条数限制）", "标准样式二（每单打印五条记录）", "套打定制"}, -1};
  kit::Check zdqh{*this, "zdqh", "记录超过五条时，自动切换到样式一"};
  kit::Field todamc1{*this, "todamc1", "套打样式", kit::Entry::Choose};
  kit::Action storeForm{*this, "storeForm", "默认"};
  kit::Check sfctsz{*this, "sfctsz", "收费前台,加载学生信息后同时调用收费窗口"};
  kit::Check sfxmmcsz{*this, "sfxmmcsz",
                      "被选中时，若后台按班级设置收费标准，则收费窗口仅加载学生所在班全部收费项目；"
                      "若后台按入学形式设置收费标准，收费窗口仅加载该入学形式全部收费项目"};
  kit::Check qfmr{*this, "qfmr", "收费前台,收费窗口加载欠费信息时到期记录默认选中"};
  kit::Check jfjljz{*this, "jfjljz", "打开后台 [ 交费记录总控界面 ] 时,加载全部数据"};
  kit::Check qfcejz{*this, "qfcejz", "当收费窗口此项目应收与实收不符时，自动调用欠费录入窗口"};
  kit::Field qfjz{*this, "qfjz", "从收费界面加载欠费项目时仅加载：", kit::Entry::Pick};
  kit::Action storeItem{*this, "storeItem", "默认"};
  kit::Field qfts{*this, "qfts", "欠费到期系统自动提示提前量（天）为："};
  kit::Action storeDays{*this, "storeDays", "默认"};
  kit::Action back{*this, "back", "返回", "arrow-left"};

 private:
  std::vector<kit::Check*> ticks();
  void storeText(std::string_view column, const store::Value& value);
  int layout_ = -1;  // the receipt layout that is stored; -1: none of the three
};

}  // namespace feesetup
