#include "shell/statistics.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "base/money.h"
#include "base/text.h"
#include "store/record_set.h"

namespace shell {

using base::Money;
using store::RecordSet;
using store::Sql;

namespace {

// Sums by a text. Rows are added under the text as it stands; texts that the store takes for equal are then put
// together, in the order in which the store sorts them.
template <class Sum> class Groups {
 public:
  Sum& operator[](const std::string& text) { return raw_[text]; }
  struct Group {
    std::string text;
    Sum sum;
  };
  std::map<std::string, Group> joined() const {
    std::map<std::string, Group> result;
    for (const auto& [text, sum] : raw_) {
      Group& group = result[base::upper(text)];
      if (group.text.empty() || text < group.text) group.text = text;
      group.sum += sum;
    }
    return result;
  }

 private:
  std::unordered_map<std::string, Sum> raw_;
};

template <class Sum>
Sum find(const std::map<std::string, typename Groups<Sum>::Group>& groups, const std::string& text) {
  const auto found = groups.find(base::upper(text));
  return found == groups.end() ? Sum() : found->second.sum;
}

struct Heads {
  long long all = 0, men = 0;
  void add(bool man) { ++all, men += man; }
  void operator+=(const Heads& other) { all += other.all, men += other.men; }
  std::vector<std::string> cells(std::string name) const {
    return {std::move(name), std::to_string(all), std::to_string(men), std::to_string(all - men)};
  }
};

struct Taken {
  Money all, submitted;
  void operator+=(const Taken& other) { all += other.all, submitted += other.submitted; }
};

struct Kept {
  Money sum;
  std::optional<base::Date> first, last;
  void span(base::Date from, base::Date to) {
    first = first ? std::min(*first, from) : from;
    last = last ? std::max(*last, to) : to;
  }
  void operator+=(const Kept& other) {
    sum += other.sum;
    if (other.first) span(*other.first, *other.last);
  }
  std::string days() const {
    if (!first) return "";
    return (*first == *last ? first->chinese() : first->chinese() + "到" + last->chinese()) + "发生";
  }
};

struct Owed {
  Money balance;
  std::unordered_set<std::string> students;
  void operator+=(const Owed& other) {
    balance += other.balance;
    for (const std::string& xh : other.students) students.insert(base::upper(xh));  // once a number, not once a row
  }
};

struct Due {
  Money due, paid, waived;
  void operator+=(const Due& other) { due += other.due, paid += other.paid, waived += other.waived; }
  std::string share() const {
    if (due.zero()) return "";
    return base::plainNumber(
               std::nearbyint(static_cast<double>(paid.units()) * 100 / static_cast<double>(due.units()))) +
           "%";
  }
};

}  // namespace

Statistics studentStatistics(store::Store& store) {
  Groups<Heads> byClass, byMajor;
  Heads school;
  RecordSet students(store, "select bjmc,xb,xtbh from xs");
  store::forEach(students, [&](RecordSet& student) {
    const std::string name = student.get("bjmc").text();
    const bool man = student.get("xb").text() == "男";
    byClass[name].add(man);
    byMajor[base::left(student.get("xtbh").text(), 2)].add(man);
    school.add(man);
  });
  Statistics result;
  const auto classHeads = byClass.joined(), majorHeads = byMajor.joined();
  RecordSet classes(store, "select * from bjzl order by bjdh");
  store::forEach(classes, [&](RecordSet& row) {
    const std::string name = row.get("bjmc").trimmed();
    result.first.push_back(find<Heads>(classHeads, name).cells(name));
  });
  RecordSet majors(store, "select * from zymcb order by zybh");
  store::forEach(majors, [&](RecordSet& row) {
    result.second.push_back(find<Heads>(majorHeads, row.get("zybh").trimmed()).cells(row.get("zymc").trimmed()));
  });
  result.totals = "全校总人数：" + base::caption(school.all) + " 人，其中 男生人数：" + base::caption(school.men) +
                  " 人，女生人数：" + base::caption(school.all - school.men) + " 人！";
  return result;
}

Statistics paymentStatistics(store::Store& store) {
  Groups<Taken> byItem;
  Groups<Kept> byOperator;
  long long count = 0, keptCount = 0;
  Money sum, keptSum;
  RecordSet payments(store, "select sfxm,je,sftj,skr,jfrq from jfjl");
  store::forEach(payments, [&](RecordSet& payment) {
    Taken& item = byItem[payment.get("sfxm").text()];
    const Money amount = payment.get("je").money();
    const store::Value submitted = payment.get("sftj");
    ++count;
    sum += amount;
    item.all += amount;
    if (submitted.text() == "*") item.submitted += amount;
    // Empty, not merely other than "*": the lists ask for the latter, and the two agree as long as the column holds
    // nothing else.
    if (submitted.isNull() || !submitted.text().empty()) return;
    Kept& kept = byOperator[payment.get("skr").text()];
    kept.sum += amount;
    if (const auto day = payment.get("jfrq").date()) kept.span(*day, *day);
    ++keptCount;
    keptSum += amount;
  });
  Statistics result;
  for (const auto& [key, item] : byItem.joined())
    result.first.push_back({item.text, base::paddedAmount(item.sum.all), base::paddedAmount(item.sum.submitted),
                            base::paddedAmount(item.sum.all - item.sum.submitted)});
  for (const auto& [key, person] : byOperator.joined())
    if (!person.sum.sum.zero())
      result.second.push_back({person.text, base::paddedAmount(person.sum.sum), person.sum.days()});
  result.totals = "记录总数：" + base::caption(count) + " 笔，总金额：" + sum.fixed2() + " 元，其中  已提交笔数：" +
                  base::caption(count - keptCount) + " 笔，金额：" + (sum - keptSum).fixed2() +
                  " 元；前台未提交笔数：" + base::caption(keptCount) + " 笔，金额：" + keptSum.fixed2() + " 元 ！";
  return result;
}

Statistics arrearsStatistics(store::Store& store, base::Date today) {
  Statistics result;
  Groups<Owed> owed;
  RecordSet open(store, "select bjmc,xh,bjje,sbjje from qfjl where sbjje<bjje and clfs<>'减免'");
  store::forEach(open, [&](RecordSet& row) {
    Owed& one = owed[row.get("bjmc").text()];
    one.students.insert(row.get("xh").text());
    one.balance += row.get("bjje").money() - row.get("sbjje").money();
  });
  for (const auto& [key, one] : owed.joined())
    result.first.push_back({one.text, std::to_string(one.sum.students.size()), base::paddedAmount(one.sum.balance)});

  Groups<Due> month;
  RecordSet planned(
      store, Sql("select bjmc,bjje,sbjje,clfs from qfjl where month(bjrq)='") + std::to_string(today.month) + "'");
  store::forEach(planned, [&](RecordSet& row) {
    Due& one = month[row.get("bjmc").text()];
    const Money paid = row.get("sbjje").money();
    one.due += row.get("bjje").money();
    one.paid += paid;
    if (row.get("clfs").text() == "减免") one.waived += paid;
  });
  const auto byClass = month.joined();
  Due school;
  RecordSet classes(store, "select * from bjzl order by bjdh");
  store::forEach(classes, [&](RecordSet& row) {
    const std::string name = row.get("bjmc").trimmed();
    const Due one = find<Due>(byClass, name);
    school += one;
    result.second.push_back({name, base::paddedAmount(one.due), base::paddedAmount(one.paid - one.waived),
                             base::paddedAmount(one.waived), base::paddedAmount(one.due - one.paid), one.share()});
  });
  result.totals = "本月应收欠费总额：" + school.due.fixed2() + " 元；已收回：" +
                  (school.paid - school.waived).fixed2() + " 元；减免：" + school.waived.fixed2() + " 元；尚欠：" +
                  (school.due - school.paid).fixed2() + " 元" +
                  (school.due.zero() ? "" : "；收回比例：" + school.share());
  return result;
}

}  // namespace shell
