// The console's menu bar, toolbar and pop-up menus: the entries under the keys by which the office knows them.
#pragma once

#include "kit/screen.h"

namespace shell {

struct ConsoleMenu {
  explicit ConsoleMenu(kit::Screen& screen) : s(screen) {}

 private:
  kit::Screen& s;

 public:
  // 文件(&F)
  kit::Action cd11{s, "cd11", "学校经营情况统计分析"}, cd121{s, "cd121", "打印毕业生就业推荐书"},
      cd13{s, "cd13", "关闭"};
  // 编辑(&E)
  kit::Action cd21{s, "cd21", "系统初始设置"}, cd22{s, "cd22", "学生学籍资料编辑"}, cd23{s, "cd23", "学生交费记录编辑"},
      cd24{s, "cd24", "学生欠费应交信息编辑"};
  // 综合管理(&C)
  kit::Action cd77{s, "cd77", "图书馆信息管理前台"}, cd70{s, "cd70", "资产设备后勤物资管理前台"},
      cd75{s, "cd75", "学生住宿信息管理前台"}, cd71{s, "cd71", "学生考试成绩管理前台"},
      cd72{s, "cd72", "学生休学复课管理前台"}, cd14{s, "cd14", "学生调班转班事务处理前台"},
      cd73{s, "cd73", "教师档案资料管理前台"}, cd76{s, "cd76", "教师工资信息管理前台"},
      cd74{s, "cd74", "毕业生信息管理前台"};
  // 系统维护(&M)
  kit::Action cd31{s, "cd31", "用户管理"}, cd32{s, "cd32", "密码修改"}, cd33{s, "cd33", "系统访问权限设置"},
      cd34{s, "cd34", "系统初始化（数据清空）"}, cd35{s, "cd35", "学校名称设置"};
  // 帮助(&H)
  kit::Action cd41{s, "cd41", "系统操作帮助"}, cd42{s, "cd42", "计算器"}, cd44{s, "cd44", "留言簿"},
      cd43{s, "cd43", "关于..."};

  // The toolbar.
  kit::Action k1{s, "k1", "前台设置", "settings"}, k2{s, "k2", "学籍资料", "graduation-cap"},
      k3{s, "k3", "交费记录", "receipt-japanese-yen"}, k4{s, "k4", "欠费应交", "clock-alert"},
      k5{s, "k5", "新生添加", "user-plus"}, k20{s, "k20", "集中收费", "users"}, k11{s, "k11", "住宿安排", "bed"},
      k7{s, "k7", "打印报表", "printer"}, k8{s, "k8", "数据导出", "file-spreadsheet"}, k9{s, "k9", "数据清空", "trash"},
      k6{s, "k6", "收费提交", "upload"}, k10{s, "k10", "关闭系统", "log-out"};

  // 快捷菜单 of the card's payments.
  kit::Action cd50{s, "cd50", "打开收费窗口"}, cd59{s, "cd59", "记录刷新"}, cd54{s, "cd54", "查看该生所有交费记录"},
      cd510{s, "cd510", "按收费项目统计该生所有交费记录"}, cd55{s, "cd55", "仅显示该生新交费记录"},
      cd571{s, "cd571", "删除选定记录"}, cd572{s, "cd572", "删除该单所有记录"}, cd56{s, "cd56", "重新打印该单记录"};
  // 欠费快捷菜单 of the card's arrears.
  kit::Action cd66{s, "cd66", "打开收费窗口"}, cd63{s, "cd63", "查看今日到期应交欠费记录"},
      cd64{s, "cd64", "刷新并返回"}, cd61{s, "cd61", "减免此笔欠费"}, cd62{s, "cd62", "减免该生全部欠费"};
  // 欠费主窗体下部快捷菜单, of the arrears' statistics; 关闭收费按项目统计的菜单, of the payments'.
  kit::Action cd82{s, "cd82", "刷新并返回"}, a11{s, "a11", "关闭统计栏"};
  // 欠费主窗体大表快捷菜单.
  kit::Action cd91{s, "cd91", "减免此笔欠费"}, cd92{s, "cd92", "减免该生全部欠费"};

  std::vector<kit::Menu> bar() {
    return {{"文件(&F)", {&cd11, &cd121, &cd13}},
            {"编辑(&E)", {&cd21, &cd22, &cd23, &cd24}},
            {"综合管理(&C)", {&cd77, &cd70, &cd75, &cd71, &cd72, &cd14, &cd73, &cd76, &cd74}},
            {"系统维护(&M)", {&cd31, &cd32, &cd33, &cd34, &cd35}},
            {"帮助(&H)", {&cd41, &cd42, &cd44, &cd43}}};
  }
  std::vector<kit::Action*> toolbar() { return {&k1, &k2, &k3, &k4, &k5, &k20, &k11, &k7, &k8, &k9, &k6, &k10}; }
  std::vector<kit::Action*> paymentsPopUp() {
    return {&cd50, &cd59, &cd54, &cd510, &cd55, nullptr, &cd571, &cd572, nullptr, &cd56};
  }
  std::vector<kit::Action*> arrearsPopUp() { return {&cd66, &cd63, &cd64, nullptr, &cd61, &cd62}; }
  std::vector<kit::Action*> arrearsOverviewPopUp() { return {&cd91, &cd92}; }
};

}  // namespace shell
