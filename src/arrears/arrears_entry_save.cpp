// From the confirm button of the arrears entry to the last row and the receipt's reminders.
#include <algorithm>

#include "arrears/arrears_entry.h"
#include "base/text.h"
#include "register/students.h"

namespace arrears {

bool Formqfcl::sameNumber() {
  const std::string inUse = base::trim(given_.current_xh);
  if (xh.trimmed() == inUse) return true;
  if (askStop("学号已被修改，不能录入！是否还原该生正确的学号 ？     ", kit::wrongInput)) xh.set(inUse);
  else xh.focus();
  return false;
}

std::vector<kit::Rule> Formqfcl::rules() {
  std::vector<kit::Rule> all;
  const auto amountRule = [&](kit::Field& field, const char* text) {
    all.push_back({&field, kit::filledNotAmount(field), text, kit::wrongInput});
  };
  for (DebtLine& line : lines)
    all.push_back({&line.sfxm, kit::longerThan(line.sfxm, 20),
                   "收费项目不能超过20个字符，请双击收费项目栏进行正确的选择！    ", kit::wrongInput});
  for (DebtLine& line : lines) amountRule(line.total, "欠费总额应该是数字 ！     ");
  for (std::size_t place = 0; place < 3; ++place)
    for (DebtLine& line : lines) amountRule(line.instalments[place].amount, "补交金额应该是数字 ！     ");
  for (std::size_t place = 0; place < 3; ++place)
    for (DebtLine& line : lines) {
      kit::Field& date = line.instalments[place].date;
      all.push_back(
          {&date, kit::filledNotDate(date), "补交日期格式不正确，请输入正确的格式 yyyy-m-d  ！  ", kit::wrongInput});
    }
  // Compared as binary floats and to the last bit, as this office has always had it: 0.10 and 0.20 do not make 0.30
  // here, and the operator splits such a total otherwise.
  for (DebtLine& line : lines)
    all.push_back(
        {&line.total,
         [&line] { return line.amount(0) + line.amount(1) + line.amount(2) != base::leadingNumber(line.total.text()); },
         "分期补交累计金额不等于欠费总额！       ", kit::wrongInput});
  const auto ofAll = [this](auto test) {
    return [this, test] { return std::all_of(lines.begin(), lines.end(), test); };
  };
  all.push_back({&lines[0].sfxm, ofAll([](const DebtLine& line) { return line.sfxm.blank(); }),
                 "收费项目名称不能为空 ！       ", kit::wrongInput});
  all.push_back({&xh, [this] { return xh.blank() || xm.blank() || bjmc.blank() || xq.blank(); },
                 "学生姓名等相关信息不能为空 ！       ", kit::wrongInput});
  all.push_back({&lines[0].total,
                 ofAll([](const DebtLine& line) { return base::leadingNumber(line.total.text()) == 0; }),
                 "欠费总额不能为零 ！       ", kit::wrongInput});
  return all;
}

bool Formqfcl::valid() { return sameNumber() && kit::holds(desk.person, rules()); }

ArrearsEntry Formqfcl::entry() const {
  const kit::Session& session = desk.session;
  const bool keyedInPanel = given_.ConsolePanel == kit::Panel::Arrears;
  ArrearsEntry entry{.xh = xh.trimmed(),
                     .xm = xm.trimmed(),
                     .bjmc = bjmc.trimmed(),
                     .xtbh = xtbh,
                     .xq = xq.trimmed(),
                     .skr = session.SessionUser,
                     .bsh = keyedInPanel ? base::trim(session.ComputerName) : desk.clock.now().plain(),
                     .qfts = session.reminder_days,
                     .debts = {}};
  for (const DebtLine& line : lines) {
    if (line.sfxm.blank() || line.total.blank()) continue;
    Debt debt{line.sfxm.trimmed(), {}};
    for (std::size_t place = 0; place < debt.instalments.size(); ++place) {
      const InstalmentFields& typed = line.instalments[place];
      if (typed.filled())
        debt.instalments[place] = {base::Date::parse(typed.date.trimmed()).value(),
                                   base::Money::leading(typed.amount.text())};
    }
    entry.debts.push_back(std::move(debt));
  }
  return entry;
}

// The first line alone reminds, below what the fee window has put first on the receipt.
std::array<std::string, 10> Formqfcl::reminders() const {
  if (!desk.session.arrears_in_remark) return {};
  std::array<std::string, 10> remarks = given_.receipt_remarks;
  for (std::size_t place = 0; place < lines[0].instalments.size(); ++place) {
    const InstalmentFields& typed = lines[0].instalments[place];
    if (typed.filled())
      remarks[place + 1] = base::Date::parse(typed.date.trimmed()).value().chinese() + "前需补交" +
                           base::Money::leading(typed.amount.text()).fixed2() + "元";
  }
  return remarks;
}

namespace {

// Nobody owes under a number or in a class that another desk has taken away meanwhile.
void studentMustStand(store::Store& store, const ArrearsEntry& entry) {
  store::RecordSet student = school::loadStudent(store, entry.xh);
  if (!student.empty() && student.get("xm").trimmed() == entry.xm && student.get("bjmc").trimmed() == entry.bjmc &&
      student.get("xtbh").trimmed() == base::trim(entry.xtbh))
    return;
  throw store::StoreError(store::Fault::RowGone,
                          "“" + entry.xm + "”的学籍资料已被其他计算机修改或删除，请重新输入学号调用该生的记录！");
}

}  // namespace

void Formqfcl::save() {
  if (!valid()) return;
  const ArrearsEntry wanted = entry();
  store::Unit unit(desk.store);
  studentMustStand(desk.store, wanted);
  addArrears(desk.store, wanted, desk.clock);
  unit.finish();
  answer = {true, reminders()};
  close();
  inform("欠费信息录入成功 ！     ", "信息提示");
}

}  // namespace arrears
