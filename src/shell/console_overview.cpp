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
    kit::Panel::Students,
    "students",
    "学生学籍资料信息",
    reports::List::Students,
    "正在加载学生学籍资料信息 ...",
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
    {{"students_open", "打开", "list-filter", {StudentAdd, StudentModify, StudentDelete, StudentQuery}},
     {"students_add", "添加", "plus", {StudentAdd}},
     {"students_modify", "修改", "pencil", {StudentModify}},
     {"students_delete", "删除", "trash-2", {StudentDelete}},
     {"students_view", "浏览", "eye", {StudentQuery}},
     {"students_back", "返回", "arrow-left", {}}},
    {"正在统计学生信息,请稍等 ...",
     [](store::Store& store, base::Date) { return studentStatistics(store); },
     "双击查看班级明细记录",
     {{"班级名称", "", Format::Text, 14},
      {"在校总人数", "", Format::Number, 6},
      {"男生人数", "", Format::Number, 6},
      {"女生人数", "", Format::Number, 6}},
     "",
     {{"专业名称", "", Format::Text, 14},
      {"在校总人数", "", Format::Number, 6},
      {"男生人数", "", Format::Number, 6},
      {"女生人数", "", Format::Number, 6}}},
    {}};

const OverviewPlan paymentsPlan{kit::Panel::Payments,
                                "payments_overview",
                                "交费记录后台信息",
                                reports::List::Payments,
                                "正在加载学生交费记录相关信息 ...",
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
                                {{"payments_open", "打开", "list-filter", {PaymentModify, PaymentDelete, PaymentQuery}},
                                 {"payments_modify", "修改", "pencil", {PaymentModify}},
                                 {"payments_delete", "删除", "trash-2", {PaymentDelete}},
                                 {"payments_back", "返回", "arrow-left", {}}},
                                {"正在统计相关交费记录,请稍等 ...",
                                 [](store::Store& store, base::Date) { return paymentStatistics(store); },
                                 "双击显示未提交收费项目信息",
                                 {{"收费项目名称", "", Format::Text, 8},
                                  {"该项目累计金额", "", Format::Padded, 7},
                                  {"已提交金额", "", Format::Padded, 7},
                                  {"未提交金额", "", Format::Padded, 7}},
                                 "双击显示该收款人未提交款项明细",
                                 {{"未提交款项经办人", "", Format::Text, 8},
                                  {"未提交金额", "", Format::Padded, 7},
                                  {"未提交款项所属日期", "", Format::Text, 16}}},
                                {}};

// The lists that a query of who has not paid, or paid less, leaves in the arrears' place.
const std::vector<kit::ListColumn> whoOwesColumns{{"     学号", "xh", Format::Text, 10},
                                                  {"   姓名", "xm", Format::Text, 5},
                                                  {"       院校及班级名称", "bjmc", Format::Text, 12},
                                                  {" 应交费所属学期或日期区间", "xqrq", Format::Text, 13},
                                                  {" 应交费项目名称", "sfxm", Format::Text, 8}};
const std::vector<kit::ListColumn> unpaidEnd{{"  联系电话", "lxdh", Format::Text, 8},
                                             {"  手机号码", "sjhm", Format::Text, 8}};
const std::vector<kit::ListColumn> lessPaidEnd{{"   应交金额", "yjje", Format::Padded, 7},
                                               {"   实交金额", "sjje", Format::Padded, 7},
                                               {" 应交与实交差额", "ce", Format::Padded, 8}};

const OverviewPlan arrearsPlan{
    kit::Panel::Arrears,
    "arrears_overview",
    "学生欠费应交信息",
    reports::List::Arrears,
    "正在加载学生欠费信息 ...",
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
    {{"arrears_open", "打开", "list-filter", {ArrearsAdd, ArrearsModify, ArrearsDelete, ArrearsQuery}},
     {"arrears_add", "添加", "plus", {ArrearsAdd}, true},
     {"arrears_modify", "修改", "pencil", {ArrearsModify}, true},
     {"arrears_delete", "删除", "trash-2", {ArrearsDelete}, true},
     {"arrears_import", "导入", "download", {ArrearsImport}},
     {"arrears_close", "返回", "arrow-left", {}}},
    {"正在统计相关欠费记录,请稍等 ...",
     &arrearsStatistics,
     "双击显示明细记录",
     {{"班级名称", "", Format::Text, 12}, {"欠费人数", "", Format::Number, 5}, {"欠费余额", "", Format::Padded, 7}},
     "双击显示明细记录",
     {{"班级名称", "", Format::Text, 10},
      {"本月应收", "", Format::Padded, 6},
      {"已收回", "", Format::Padded, 6},
      {"减免", "", Format::Padded, 6},
      {"尚欠", "", Format::Padded, 6},
      {"收回比例", "", Format::Number, 4}}},
    {{"sum_bjje", "拟补交总额"}, {"sum_sbjje", "实补交总额"}, {"sum_waived", "减免总额"}}};

StatisticsBar::StatisticsBar(kit::Screen& screen, const std::string& overview, const StatisticsPlan& what)
    : plan(what),
      frame(screen, overview + "_statistics", "统计信息"),
      first(screen, overview + "_statistics_first", plan.first),
      second(screen, overview + "_statistics_second", plan.second),
      totals(screen, overview + "_statistics_totals", "", kit::Entry::Shown) {
  first.setTip(plan.firstTip);
  second.setTip(plan.secondTip);
  frame.show(false);
}

void StatisticsBar::fill(kit::Desk& desk) {
  const Statistics figures = plan.compute(desk.store, desk.clock.today());
  close();
  for (const auto& cells : figures.first) first.addRow(cells);
  for (const auto& cells : figures.second) second.addRow(cells);
  totals.set(figures.totals);
  frame.show(true);
}

void StatisticsBar::close() {
  frame.show(false);
  first.clear();
  second.clear();
  totals.clear();
}

Overview::Overview(kit::Screen& screen, const OverviewPlan& what)
    : plan(what),
      holds(what.holds),
      frame(screen, what.name, what.title),
      list(screen, std::string(what.name) + "_rows", what.columns),
      bar(screen, std::string(what.name) + "_bar", "", kit::Entry::Shown),
      statistics(screen, what.name, what.statistics),
      zoom(screen, std::string(what.name) + "_zoom", "统计", "chart-column") {
  for (const Figure& figure : plan.figures) figures.emplace_back(screen, figure.name, figure.label, kit::Entry::Shown);
  for (const OverviewButton& button : plan.buttons)
    buttons.emplace_back(screen, button.name, button.caption, button.icon);
  frame.show(false);
  list.searchable = true;
}

void Overview::enableByRights(const kit::Desk& desk) {
  for (std::size_t i = 0; i < buttons.size(); ++i)
    buttons[i].enable(kit::mayAny(desk, plan.buttons[i].anyOf) &&
                      (holds == plan.holds || !plan.buttons[i].changesRows));
}

kit::Action& Overview::button(std::string_view caption) {
  for (kit::Action& one : buttons)
    if (one.caption() == caption) return one;
  throw std::logic_error("the overview has no such button");
}

kit::Nodes Overview::layout() {
  kit::Nodes sums{bar}, actions{zoom};
  for (kit::Field& figure : figures) sums.push_back(figure);
  for (kit::Action& button : buttons) actions.push_back(button);
  return {list, figures.empty() ? kit::Node(bar) : kit::row(std::move(sums)),
          kit::group(statistics.frame, {kit::row({statistics.first, statistics.second}), statistics.totals}),
          kit::buttons(std::move(actions))};
}

void Overview::clear() {
  list.clear();
  bar.clear();
  for (kit::Field& figure : figures) figure.clear();
  statistics.close();
}

Filled fillStudents(Overview& overview, kit::Desk& desk, kit::Notice& notice) {
  RecordSet students(desk.store, Sql("select * from xs ") + overview.filter.where);
  Filled filled;
  overview.list.fill(students, [&](RecordSet& row) {
    if (row.get("xb").text() == "男") ++filled.men;
    if (notice.due(++filled.count)) notice.show("正在加载学生" + row.get("xm").trimmed() + "的信息 ...", filled.count);
  });
  overview.bar.set("在校生总人数：" + base::caption(filled.count) + " 人 ！");
  return filled;
}

Filled fillPayments(Overview& overview, kit::Desk& desk, kit::Notice& notice) {
  RecordSet payments(desk.store, Sql("select * from jfjl ") + overview.filter.where);
  Filled filled;
  overview.list.fill(payments, [&](RecordSet& row) {
    filled.paid += row.get("je").money();
    notice.count(overview.plan.notice, ++filled.count);
  });
  overview.bar.set("记录总数：" + base::caption(filled.count) + " 笔，总金额：" + filled.paid.fixed2() + " 元！");
  return filled;
}

namespace {

void addArrears(Filled& sums, RecordSet& row) {
  const base::Money paid = row.get("sbjje").money();
  sums.due += row.get("bjje").money();
  sums.paid += paid;
  if (row.get("clfs").text() == "减免") sums.waived += paid;
}

// Of the whole book, whatever the list shows.
Filled arrearsOfAll(kit::Desk& desk) {
  Filled sums;
  RecordSet all(desk.store, "select bjje,sbjje,clfs from qfjl");
  store::forEach(all, [&](RecordSet& row) { addArrears(sums, row); });
  return sums;
}

std::vector<kit::ListColumn> joined(std::vector<kit::ListColumn> columns, const std::vector<kit::ListColumn>& more) {
  columns.insert(columns.end(), more.begin(), more.end());
  return columns;
}

}  // namespace

Filled fillArrears(Overview& overview, kit::Desk& desk, kit::Notice& notice) {
  struct Holds {
    Sql rows;
    std::vector<kit::ListColumn> columns;
  };
  const bool arrears = overview.holds == reports::List::Arrears;
  const Holds holds = overview.holds == reports::List::Unpaid
                          ? Holds{"select * from qfjl_wjf ", joined(whoOwesColumns, unpaidEnd)}
                      : overview.holds == reports::List::Comparison
                          ? Holds{"select * from qfjl_je ", joined(whoOwesColumns, lessPaidEnd)}
                          : Holds{"select * from qfjl ", arrearsPlan.columns};
  overview.list.setColumns(holds.columns);
  for (kit::Field& figure : overview.figures) {
    figure.clear();
    figure.show(arrears);
  }
  RecordSet rows(desk.store, holds.rows + overview.filter.where);
  Filled filled;
  overview.list.fill(rows, [&](RecordSet& row) {
    if (arrears) addArrears(filled, row);
    notice.count(overview.plan.notice, ++filled.count);
  });
  overview.bar.set("记录个数：" + base::caption(filled.count) + " 条");
  if (!arrears) return filled;
  const Filled all = overview.filter.where.empty() ? filled : arrearsOfAll(desk);
  const base::Money sums[] = {all.due, all.paid, all.waived};
  for (std::size_t i = 0; i < overview.figures.size(); ++i) overview.figures[i].set(sums[i].fixed2());
  return filled;
}

}  // namespace shell
