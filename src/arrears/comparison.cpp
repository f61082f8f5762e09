#include "arrears/comparison.h"

#include <unordered_map>

#include "base/text.h"
#include "kit/filter.h"

namespace arrears {

using base::Money;
using store::RecordSet;
using store::Sql;

namespace {

constexpr long long betweenNotices = 200;  // students

Sql studentsOf(const PaymentQuestion& question) {
  Sql all("select xh,xm,bjmc,lxdh,sjhm from xs");
  return question.bjmc.empty() ? all : all + " where bjmc='" + question.bjmc + "'";
}

// What each student has paid under the question's conditions; one who has not paid at all is not in it.
std::unordered_map<std::string, Money> paidBy(store::Store& store, const PaymentQuestion& question) {
  std::vector<kit::Condition> conditions{kit::equals("xq", question.xq), kit::equals("sfxm", question.sfxm)};
  if (question.from && question.to) {
    const Sql from = Sql("jfrq>=#") + question.from->plain() + "# and jfrq<=#";
    conditions.push_back({question.to->plain(), from, from, "#"});
  }
  std::unordered_map<std::string, Money> paid;
  RecordSet payments(store, Sql("select xh,je from jfjl") + kit::chain(conditions));
  store::forEach(payments, [&](RecordSet& row) {
    const store::Value xh = row.get("xh");  // Null is nobody's number, also not of a student whose number is empty
    if (!xh.isNull()) paid[base::upper(xh.text())] += row.get("je").money();
  });
  return paid;
}

std::string periodOf(const PaymentQuestion& question) {
  if (!question.xq.empty()) return question.xq;
  if (question.from && question.to) return "从 " + question.from->plain() + " 到 " + question.to->plain();
  return "入学以来全部信息";
}

// Walks the students; decide sees what each has paid (null: nothing) and says whether a row is written.
std::optional<long long> fill(store::Store& store, const char* table, const PaymentQuestion& question,
                              base::DateTime now, const Seen& seen,
                              const std::function<bool(const Money* paid, RecordSet& row)>& decide) {
  store::Unit unit(store);
  RecordSet target(store, Sql::table(table));
  target.removeAll();
  const auto paid = paidBy(store, question);
  const std::string period = periodOf(question), item = question.sfxm.empty() ? "无任何交费记录" : question.sfxm;
  const std::string moment = now.plain();
  long long found = 0, walked = 0;
  RecordSet students(store, studentsOf(question));
  store::forEach(students, [&](RecordSet& student) {
    const auto of = paid.find(base::upper(student.get("xh").trimmed()));
    target.addNew();
    if (decide(of == paid.end() ? nullptr : &of->second, target)) {
      for (const char* column : {"xh", "xm", "bjmc", "lxdh", "sjhm"}) target.set(column, student.get(column));
      target.set("xqrq", period);
      target.set("sfxm", item);
      target.set("bsh", moment);
      target.update();
      ++found;
    }
    if (++walked % betweenNotices == 0 && seen) seen(student.get("xm").trimmed(), found);
  });
  unit.finish();
  return walked == 0 ? std::nullopt : std::optional(found);
}

}  // namespace

std::optional<long long> listUnpaid(store::Store& store, const PaymentQuestion& question, base::DateTime now,
                                    const Seen& seen) {
  return fill(store, "qfjl_wjf", question, now, seen, [](const Money* paid, RecordSet&) { return paid == nullptr; });
}

std::optional<long long> listByPaid(store::Store& store, const PaymentQuestion& question, Money due, PaidAs wanted,
                                    base::DateTime now, const Seen& seen) {
  return fill(store, "qfjl_je", question, now, seen, [&](const Money* paid, RecordSet& row) {
    const Money sum = paid ? *paid : Money();
    if (wanted == PaidAs::Less ? sum >= due : wanted == PaidAs::Exactly ? sum != due : sum <= due) return false;
    row.set("yjje", due);
    row.set("sjje", sum);
    row.set("ce", due - sum);
    return true;
  });
}

}  // namespace arrears
