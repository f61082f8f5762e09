#include "shell/console_overview.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"
#include "shell/rights.h"

namespace shell {

using kit::Format;
using store::RecordSet;
using store::Sql;

const OverviewPlan studentsPlan{
    kit::Panel::Students, "students", "学生学籍资料信息", "正在加载学生学籍资料信息 ...",
    {{"     学号", "xh", Format::Text, 10},
     {"   姓名", "xm", Format::Text, 5},
     {"姓别", "xb", Format::Text, 3},  // the heading by which the office's printed lists know the column
     {" 民族", "mz", Format::Text, 4},
     {" 出生日期", "csrq", Format::Date, 7},
     {"    身份证号码", "sfzhm", Format::Text, 12},
     {" 政治面貌", "zzmm", Format::Text, 5},
     {" 入学日期", "rxrq", Format::Date, 7},
     {" 入学形式", "rxxs", Format::Text, 6},
     {"  联系电话", "lxdh", Format::Text, 8},
     {"  手机号码", "sjhm", Format::Text, 8},
     {"  院校及班级名称", "bjmc", Format::Text, 12},
     {"      所学专业", "zymc", Format::Text, 10},
     {"          原毕业学校", "byxx", Format::Text, 12},
     {"        信用卡号码", "yhkh", Format::Text, 12}},
    {{"students_open", "打开", "folder-open", {StudentAdd, StudentModify, StudentDelete, StudentQuery}},
     {"students_add", "添加", "plus", {StudentAdd}},
     {"students_modify", "修改", "pencil", {StudentModify}},
     {"students_delete", "删除", "trash-2", {StudentDelete}},
     {"students_view", "浏览", "eye", {StudentQuery}},
     {"students_back", "返回", "undo-2", {}}}};

const OverviewPlan paymentsPlan{
    kit::Panel::Payments, "payments_overview", "交费记录后台信息", "正在加载学生交费记录相关信息 ...",
    {{" 记录标识号", "lsh", Format::Text, 9},
     {"    姓名", "xm", Format::Text, 5},
     {"       院校及班级名称", "bjmc", Format::Text, 12},
     {"  交费所属学期", "xq", Format::Text, 9},
     {" 交费日期", "jfrq", Format::Date, 7},
     {"  交费方式", "jffs", Format::Text, 6},
     {" 收据编号", "fpbh", Format::Text, 7},
     {" 收费项目名称", "sfxm", Format::Text, 8},
     {"    金额", "je", Format::Padded, 7},
     {"提交", "sftj", Format::Text, 3},
     {"收款人", "skr", Format::Text, 5}},
    {{"payments_open", "打开", "folder-open", {PaymentModify, PaymentDelete, PaymentQuery}},
     {"payments_modify", "修改", "pencil", {PaymentModify}},
     {"payments_delete", "删除", "trash-2", {PaymentDelete}},
     {"payments_back", "返回", "undo-2", {}}}};

const OverviewPlan arrearsPlan{
    kit::Panel::Arrears, "arrears_overview", "学生欠费应交信息", "正在加载学生欠费信息 ...",
    {{" 记录标识号", "lsh", Format::Text, 9},
     {"  姓名", "xm", Format::Text, 5},
     {"    所在院校及班级名称", "bjmc", Format::Text, 12},
     {"  收费项目", "sfxm", Format::Text, 8},
     {" 欠费日期", "qfrq", Format::Date, 7},
     {"    学年学期", "xq", Format::Text, 9},
     {"拟补交日期", "bjrq", Format::Date, 7},
     {"拟补交金额", "bjje", Format::Padded, 7},
     {"实补交日期", "sbjrq", Format::Date, 7},
     {"实补交金额", "sbjje", Format::Padded, 7},
     {"当前状态", "clfs", Format::Text, 5}},
    {{"arrears_open", "打开", "folder-open", {ArrearsAdd, ArrearsModify, ArrearsDelete, ArrearsQuery}},
     {"arrears_add", "添加", "plus", {ArrearsAdd}},
     {"arrears_modify", "修改", "pencil", {ArrearsModify}},
     {"arrears_delete", "删除", "trash-2", {ArrearsDelete}},
     {"arrears_import", "导入", "download", {ArrearsImport}},
     {"arrears_close", "返回", "undo-2", {}}}};

Overview::Overview(kit::Screen& screen, const OverviewPlan& what)
    : plan(what),
      frame(screen, what.name, what.title),
      list(screen, std::string(what.name) + "_rows", what.columns),
      bar(screen, std::string(what.name) + "_bar", "", kit::Entry::Shown) {
  for (const OverviewButton& button : plan.buttons) buttons.emplace_back(screen, button.name, button.caption, button.icon);
  frame.show(false);
}

void Overview::settle(const kit::Desk& desk) {
  for (std::size_t i = 0; i < buttons.size(); ++i)
    if (!plan.buttons[i].anyOf.empty()) shell::settle(desk, {{buttons[i], plan.buttons[i].anyOf}});
}

kit::Action& Overview::button(std::string_view caption) {
  for (kit::Action& one : buttons)
    if (one.caption() == caption) return one;
  throw std::logic_error("the overview has no such button");
}

kit::Nodes Overview::layout() {
  kit::Nodes actions;
  for (kit::Action& button : buttons) actions.push_back(button);
  return {list, bar, kit::buttons(std::move(actions))};
}

void Overview::clear() {
  list.clear();
  bar.clear();
}

void fillStudents(Overview& overview, kit::Desk& desk) {
  RecordSet students(desk.store, Sql("select * from xs ") + desk.session.student_where);
  overview.list.fill(students);
  overview.bar.set("在校生总人数：" + base::caption(overview.list.count()) + " 人 ！");
}

void fillPayments(Overview& overview, kit::Desk& desk) {
  RecordSet payments(desk.store, Sql("select * from jfjl ") + desk.session.payment_where);
  base::Money total;
  overview.list.fill(payments, [&](RecordSet& row) { total += row.get("je").money(); });
  overview.bar.set("记录总数：" + base::caption(overview.list.count()) + " 笔，总金额：" + total.fixed2() + " 元！");
}

void fillArrears(Overview& overview, kit::Desk& desk) {
  overview.list.setColumns(arrearsPlan.columns);
  RecordSet arrears(desk.store, Sql("select * from qfjl ") + desk.session.arrears_where);
  overview.list.fill(arrears);
  overview.bar.set("记录个数：" + base::caption(overview.list.count()) + " 条");
}

}  // namespace shell
