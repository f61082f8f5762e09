#include "shell/console_front.h"

#include "base/text.h"
#include "collection/payment_columns.h"
#include "register/settings.h"

namespace shell {

using store::RecordSet;
using store::Sql;
using students::StudentCard;

namespace {

enum Place { Beside, Whole, Half };  // beside the photo; below it, a whole row or half of one

struct CardLine {
  Place place;
  const char* name;
  const char* label;
  std::string StudentCard::*shows;
};

constexpr CardLine cardLines[] = {
    {Beside, "xb", "性别", &StudentCard::xb},          {Beside, "csrq", "出生日期", &StudentCard::csrq},
    {Beside, "zzmm", "政治面貌", &StudentCard::zzmm},  {Beside, "status", "在校状态", &StudentCard::status},
    {Whole, "sfzhm", "身份证号", &StudentCard::sfzhm}, {Whole, "bjmc", "院校班级", &StudentCard::bjmc},
    {Whole, "zymc", "所学专业", &StudentCard::zymc},   {Half, "rxrq", "入学日期", &StudentCard::rxrq},
    {Half, "rxxs", "入学形式", &StudentCard::rxxs},    {Half, "lxdh", "联系电话", &StudentCard::lxdh},
    {Half, "sjhm", "手机号码", &StudentCard::sjhm},    {Whole, "jtzz", "家庭住址", &StudentCard::jtzz},
    {Whole, "byxx", "原毕业校", &StudentCard::byxx},   {Whole, "yhkh", "信用卡号", &StudentCard::yhkh},
    {Half, "sfbz", "收费标准", &StudentCard::sfbz},    {Half, "yzbm", "邮政编码", &StudentCard::yzbm},
    {Half, "loumc", "楼名称", &StudentCard::loumc},    {Half, "ssbh", "宿舍编号", &StudentCard::ssbh},
    {Half, "cwh", "床位号", &StudentCard::cwh},        {Half, "rq", "入住日期", &StudentCard::rq},
};

// Narrow enough that what is owed stands in sight on the smallest desktop.
const std::vector<kit::ListColumn> arrearsColumns{
    {"记录标识号", "lsh", kit::Format::Text, 7},  {"姓名", "xm", kit::Format::Text, 5},
    {"收费项目", "sfxm", kit::Format::Text, 5},   {"学年学期", "xq", kit::Format::Text, 8},
    {"拟补交日期", "bjrq", kit::Format::Date, 6}, {"欠费余额", "", kit::Format::Padded, 5},
    {"当前状态", "clfs", kit::Format::Text, 4},
};

constexpr const char* findStudent = "输入学号或姓名，按回车查找学生";

base::Money balanceOf(RecordSet& row) { return row.get("bjje").money() - row.get("sbjje").money(); }

}  // namespace

CardFrame::CardFrame(kit::Screen& screen)
    : frame(screen, "card", "学籍资料："),
      xh(screen, "xh", "学号"),
      xm(screen, "xm", "姓名", kit::Entry::Pick),
      photo(screen, "photo") {
  for (const CardLine& line : cardLines) details.emplace_back(screen, line.name, line.label, kit::Entry::Shown);
}

void CardFrame::show(const StudentCard& card) {
  xh.set(card.xh);
  xm.set(card.xm);
  for (std::size_t i = 0; i < details.size(); ++i) details[i].set(card.*cardLines[i].shows);
  photo.set(card.photo);
}

void CardFrame::clear() { show({}); }

kit::Nodes CardFrame::layout() {
  kit::Nodes top{xh, xm}, rest;
  for (std::size_t i = 0; i < details.size(); ++i) {
    if (cardLines[i].place == Beside) top.push_back(details[i]);
    else rest.push_back(kit::spanning(details[i], cardLines[i].place == Whole ? 2 : 1));
  }
  return {kit::row({kit::form(std::move(top)), photo}), kit::form(std::move(rest), 2), kit::stretch()};
}

PaymentsFrame::PaymentsFrame(kit::Screen& screen, kit::Desk& desk)
    : frame(screen, "payments", "交费记录："),
      list(screen, "payment_list", collection::paymentColumns),
      bar(screen, "payment_bar", "", kit::Entry::Shown),
      next_(findStudent),
      desk_(desk) {
  list.setTip("右键有操作");
  list.freshBy = "sftj";
}

void PaymentsFrame::showAll(const std::string& xh, const std::string& name) {
  clear();
  list.setWhenEmpty(xh.empty() ? next_ : "该生没有交费记录");
  payment_list_mode = PaymentList::All;
  RecordSet payments(desk_.store, Sql("select * from jfjl where xh='") + xh + "' order by jfrq");
  base::Money total;
  std::string first, last;
  list.fill(payments, [&](RecordSet& row) {
    total += row.get("je").money();
    last = kit::formatted(row.get("jfrq"), kit::Format::LongDate);
    if (first.empty()) first = last;
  });
  if (list.count() == 0) return;
  list.lookAt(list.count() - 1);  // what was just paid is the last
  bar.set("学生：" + name + " 从" + first + "到" + last + "共有交费记录数：" + base::caption(list.count()) +
          " 条，累计交费总额：" + total.fixed2() + " 元");
}

void PaymentsFrame::showNew(const std::string& xh) {
  RecordSet payments(desk_.store, Sql("select * from jfjl where xh='") + xh + "' and sftj<>'*' order by jfrq");
  if (payments.empty()) return desk_.person.tell(kit::Box::Information, "该生没有新的交费记录！    ", "信息提示");
  payment_list_mode = PaymentList::New;
  base::Money total;
  list.fill(payments, [&](RecordSet& row) { total += row.get("je").money(); });
  bar.set("新交费记录：" + base::caption(list.count()) + " 条，累计金额：" + total.fixed2() + " 元");
}

void PaymentsFrame::guide(bool newSchool) {
  next_ = newSchool ? "新学校：请在“编辑”菜单的“系统初始设置”中依次建立专业、班级、收费项目和收费标准，再按“新生添加”"
                    : findStudent;
  clear();
}

void PaymentsFrame::clear() {
  list.setWhenEmpty(next_);
  list.clear();
  bar.clear();
}

ArrearsFrame::ArrearsFrame(kit::Screen& screen, kit::Desk& desk)
    : frame(screen, "arrears", "欠费记录："),
      list(screen, "arrears_list", arrearsColumns),
      bar(screen, "arrears_bar", "", kit::Entry::Shown),
      due(screen, "due", "今日到期", "calendar-clock"),
      back(screen, "arrears_back", "返回", "arrow-left"),
      desk_(desk) {
  list.setTip("双击查看交费统计信息");
  list.dueBy = "bjrq";
  due.setTip("单击查看全校到期应交欠费记录");
  back.setTip("单击返回");
}

void ArrearsFrame::show(const std::string& xh) {
  clear();
  list.setWhenEmpty("该生没有欠费");
  list.today = desk_.clock.today();
  RecordSet owed(desk_.store,
                 Sql("select * from qfjl where xh='") + xh + "' and bjje-sbjje>0 and clfs<>'减免' order by bjrq");
  store::forEach(owed, [&](RecordSet& row) { addRow(row, balanceOf(row)); });
}

void ArrearsFrame::showDue() {
  clear();
  list.setWhenEmpty("没有到期的欠费");
  holdsDue_ = true;
  frame.setTitle("今日到期应交欠费信息");
  school::loadReminderDays(desk_);
  const base::Date today = list.today = desk_.clock.today();
  RecordSet open(desk_.store, "select * from qfjl where  bjje-sbjje>0 and clfs<>'减免' order by bjrq");
  base::Money total;
  for (; !open.atEnd(); open.next()) {
    const auto planned = open.get("bjrq").date();
    if (!planned) continue;
    if (today.daysUntil(*planned) >= desk_.session.reminder_days) break;  // all behind it are due later still
    const base::Money balance = balanceOf(open);
    addRow(open, balance);
    total += balance;
  }
  bar.set(list.count() == 0
              ? "没有到期的欠费记录！"
              : "欠费到期应交记录数：" + base::caption(list.count()) + " 条，总额为：" + total.fixed2() + "元 ！");
}

void ArrearsFrame::addRow(RecordSet& row, base::Money balance) {
  std::vector<std::string> cells;
  for (const kit::ListColumn& column : arrearsColumns)
    cells.push_back(column.column.empty() ? base::paddedAmount(balance)
                                          : kit::formatted(row.get(column.column), column.format));
  list.addRow(cells, row.mark());
}

void ArrearsFrame::clear() {
  list.setWhenEmpty(findStudent);
  holdsDue_ = false;
  list.clear();
  bar.clear();
}

SharingFrame::SharingFrame(kit::Screen& screen, kit::Desk& desk)
    : frame(screen, "sharing", "系统共享状态："),
      list(screen, "sharing_list",
           {{"用户", "yhxm", kit::Format::Text, 4},
            {"计算机", "jsjmc", kit::Format::Text, 5},
            {"开始时间", "kjsj", kit::Format::Text, 10}}),
      desk_(desk) {}

void SharingFrame::refresh() {
  RecordSet sessions(desk_.store, "select * from czjl where gjsj=''");
  list.clear();
  store::forEach(sessions, [this](RecordSet& row) {
    const std::string began = row.get("kjsj").text();
    list.addRow({row.get("yhxm").text(), row.get("jsjmc").text(), lives(row) ? began : "已中断 " + began}, row.mark());
  });
}

RecordSet SharingFrame::ownRow() const {
  const auto& [session, computer] = std::pair(desk_.session.SessionStart, desk_.session.ComputerName);
  return {desk_.store,
          Sql("select * from czjl where kjsj='") + base::trim(session) + "' and jsjmc='" + base::trim(computer) + "'"};
}

// What the person does meanwhile has saved nothing by it.
void SharingFrame::sayAlive() {
  constexpr long long often = 60;
  const base::DateTime now = desk_.clock.now();
  RecordSet own = ownRow();
  if (own.empty() || !own.get("gjsj").empty()) return;
  const auto last = own.get("hdsj").moment();
  if (last && *last <= now && now < last->plusSeconds(often)) return;
  const long long before = desk_.store.saved();
  own.set("hdsj", now);
  own.update();
  desk_.savedBefore += desk_.store.saved() - before;
}

bool SharingFrame::lives(RecordSet& row) {
  constexpr long long silence = 180;
  const base::DateTime now = desk_.clock.now();
  const store::Value moment = row.get("hdsj").empty() ? row.get("kjsj") : row.get("hdsj");
  Seen& seen = seen_.try_emplace(row.mark(), Seen{moment.text(), now}).first->second;
  if (seen.moment != moment.text()) seen = {moment.text(), now, true};
  const base::DateTime heard = seen.changed ? seen.since : std::min(seen.since, moment.moment().value_or(seen.since));
  return now < heard.plusSeconds(silence);
}

ClassPanel::ClassPanel(kit::Screen& screen, kit::Desk& desk)
    : frame(screen, "classes", "专业及班级"),
      tree(screen, "class_tree"),
      students(screen, "class_students", {{"学号", "xh", kit::Format::Text, 9}, {"姓名", "xm", kit::Format::Text, 6}}),
      opensFeeWindow(screen, "opens_fee_window", "加载学生信息的同时调用收费窗口"),
      desk_(desk) {
  frame.show(false);
  tree.onClick([this] { listClass(); });
}

void ClassPanel::fillTree() {
  RecordSet majors(desk_.store, "select * from zymcb order by zybh");
  std::vector<kit::TreeNode> nodes;
  int number = 0;
  store::forEach(majors, [&](RecordSet& major) {
    kit::TreeNode node{"k" + std::to_string(++number), major.get("zymc").trimmed(), {}};
    RecordSet classes(desk_.store,
                      Sql("select * from bjzl where zybh='") + major.get("zybh").trimmed() + "' order by bjdh");
    store::forEach(classes, [&](RecordSet& one) {
      node.children.push_back(
          {node.key + "." + std::to_string(node.children.size() + 1), one.get("bjmc").trimmed(), {}});
    });
    nodes.push_back(std::move(node));
  });
  tree.set(std::move(nodes));
  students.clear();
}

void ClassPanel::listClass() {
  const kit::TreeNode* node = tree.selected();
  if (!node || !node->children.empty()) return;
  RecordSet list(desk_.store, Sql("select * from xs where bjmc='") + node->text + "' order by xh");
  students.fill(list);
}

}  // namespace shell
