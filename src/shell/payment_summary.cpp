#include "shell/payment_summary.h"

#include "base/text.h"
#include "register/students.h"

namespace shell {

using store::RecordSet;
using store::Sql;

Formzct1::Formzct1(kit::Desk& all, std::string student)
    : Screen(all, "Formzct1", "学生交费信息统计"), xh(std::move(student)) {
  heading.prominent = true;
  back.setTip("单击返回");
  back.onPress([this] { close(); });
  for (kit::List* list : {&payments, &sums}) list->onDoubleClick([this] { close(); });
}

void Formzct1::load() {
  RecordSet student = school::loadStudent(desk.store, xh);
  RecordSet paid = rows(Sql("select * from jfjl where xh='") + xh + "' order by jfrq desc");
  // A student who has left the register is still named by the payments.
  RecordSet& named = student.empty() ? paid : student;
  heading.set("学生：" + (named.empty() ? "" : named.get("xm").trimmed()) + " [ " + xh + " ] 交费信息统计");
  payments.fill(paid);
  addSums();
  back.focus();
}

void Formzct1::addSums() {
  sums.clear();
  RecordSet paid = rows(Sql("select xq,sfxm,je from jfjl where xh='") + xh + "' order by xq,sfxm");
  std::string term, item;
  base::Money sum;
  int times = 0;
  const auto addSum = [&] {
    if (times > 0) sums.addRow({base::trim(term), base::trim(item), base::paddedAmount(sum), std::to_string(times)});
  };
  store::forEach(paid, [&](RecordSet& row) {
    const std::string nextTerm = row.get("xq").text(), nextItem = row.get("sfxm").text();
    if (!base::sameText(nextTerm, term) || !base::sameText(nextItem, item)) {
      addSum();
      term = nextTerm;
      item = nextItem;
      sum = {};
      times = 0;
    }
    sum += row.get("je").money();
    ++times;
  });
  addSum();
}

}  // namespace shell
