#include "shell/statistics.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <unordered_map>

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
  Sum& operator[](std::string_view text) {
    if (last_ && last_->first == text) return last_->second;  // rows of one class mostly follow each other
    auto known = raw_.find(text);
    if (known == raw_.end()) known = raw_.emplace(text, Sum()).first;
    last_ = &*known;
    return last_->second;
  }
  struct Group {
    Group(std::string known, Sum first) : text(std::move(known)), sum(std::move(first)) {}
    std::string text;
    Sum sum;
  };
  std::map<std::string, Group> joined() {
    std::map<std::string, Group> result;
    for (auto& [text, sum] : raw_) {
      const auto [group, isNew] = result.try_emplace(base::upper(text), text, std::move(sum));
      if (isNew) continue;
      if (text < group->second.text) group->second.text = text;
      group->second.sum += sum;
    }
    raw_.clear();
    last_ = nullptr;
    return result;
  }

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  std::unordered_map<std::string, Sum, Hash, std::equal_to<>> raw_;
  std::pair<const std::string, Sum>* last_ = nullptr;
};

template <class Sum>
const Sum& find(const std::map<std::string, typename Groups<Sum>::Group>& groups, const std::string& text) {
  static const Sum none;
  const auto found = groups.find(base::upper(text));
  return found == groups.end() ? none : found->second.sum;
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
  std::vector<std::string> students;  // one that comes again at once is left out
  void add(std::string_view xh) {
    if (students.empty() || students.back() != xh) students.emplace_back(xh);
  }
  void operator+=(const Owed& other) {
    balance += other.balance;
    students.insert(students.end(), other.students.begin(), other.students.end());
  }
  std::size_t heads() const {
    std::vector<std::string> all;
    all.reserve(students.size());
    for (const std::string& xh : students) all.push_back(base::upper(xh));
    std::ranges::sort(all);
    return static_cast<std::size_t>(std::ranges::unique(all).begin() - all.begin());
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

struct OfClass {
  bool open = false;  // some arrears are
  Owed owed;
  Due month;
  void operator+=(const OfClass& other) {
    open |= other.open;
    owed += other.owed;
    month += other.month;
  }
};

}  // namespace

Statistics studentStatistics(store::Store& store) {
  Groups<Heads> byClass, byMajor;
  Heads school;
  RecordSet students(store, "select bjmc,xb,xtbh from xs");
  store::forEach(students, [&](RecordSet& student) {
    Heads& ofClass = byClass[student.text("bjmc")];
    const bool man = student.text("xb") == "男";
    ofClass.add(man);
    byMajor[base::left(student.text("xtbh"), 2)].add(man);
    school.add(man);
  });
  Statistics result;
  const auto classHeads = byClass.joined(), majorHeads = byMajor.joined();
  RecordSet classes(store, "select bjmc from bjzl order by bjdh");
  store::forEach(classes, [&](RecordSet& row) {
    const std::string name = row.get("bjmc").trimmed();
    result.first.push_back(find<Heads>(classHeads, name).cells(name));
  });
  RecordSet majors(store, "select zybh,zymc from zymcb order by zybh");
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
    Taken& item = byItem[payment.text("sfxm")];
    const Money amount = payment.money("je");
    const std::string_view submitted = payment.text("sftj");
    ++count;
    sum += amount;
    item.all += amount;
    if (submitted == "*") item.submitted += amount;
    // Empty, not merely other than "*": the lists ask for the latter, and the two agree as long as the column holds
    // nothing else.
    if (submitted.data() == nullptr || !submitted.empty()) return;
    Kept& kept = byOperator[payment.text("skr")];
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
  Groups<OfClass> groups;
  RecordSet arrears(store, Sql("select bjmc,xh,bjje,sbjje,clfs,bjrq from qfjl where sbjje<bjje or ") +
                               "month(bjrq)=" + std::to_string(today.month));
  store::forEach(arrears, [&](RecordSet& row) {
    const Money due = row.money("bjje"), paid = row.money("sbjje");
    const std::string_view state = row.text("clfs");
    const bool waived = state == "减免";
    OfClass& one = groups[row.text("bjmc")];
    // As the list of open arrears sees it, for which nothing can be said of a column that was never set.
    const auto isSet = [&](const char* column, Money sum) { return !sum.zero() || !row.get(column).isNull(); };
    if (paid < due && !waived && state.data() && isSet("sbjje", paid) && isSet("bjje", due)) {
      one.open = true;
      one.owed.add(row.text("xh"));
      one.owed.balance += due - paid;
    }
    const auto planned = row.get("bjrq").date();
    if (!planned || planned->month != today.month) return;
    one.month.due += due;
    one.month.paid += paid;
    if (waived) one.month.waived += paid;
  });
  const auto byClass = groups.joined();
  for (const auto& [key, one] : byClass) {
    const Owed& owed = one.sum.owed;
    if (one.sum.open)
      result.first.push_back({one.text, std::to_string(owed.heads()), base::paddedAmount(owed.balance)});
  }

  Due school;
  RecordSet classes(store, "select bjmc from bjzl order by bjdh");
  store::forEach(classes, [&](RecordSet& row) {
    const std::string name = row.get("bjmc").trimmed();
    const Due one = find<OfClass>(byClass, name).month;
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
