#include "arrears/comparison.h"

#include "base/text.h"
#include "kit/filter.h"
#include "store/new_rows.h"

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
base::TextMap<Money> paidBy(store::Store& store, const PaymentQuestion& question) {
  std::vector<kit::Condition> conditions{kit::equals("xq", question.xq), kit::equals("sfxm", question.sfxm)};
  if (question.from && question.to) {
    const Sql from = Sql("jfrq>=#") + question.from->plain() + "# and jfrq<=#";
    conditions.push_back({question.to->plain(), from, from, "#"});
  }
  base::TextMap<Money> paid;
  RecordSet payments(store, Sql("select xh,je from jfjl") + kit::chain(conditions));
  store::forEach(payments, [&](RecordSet& row) {
    const std::string_view xh = row.text("xh");
    if (xh.data() == nullptr) return;  // Null is nobody's number, also not of a student whose number is empty
    const auto known = paid.find(xh);
    (known != paid.end() ? known->second : paid[std::string(xh)]) += row.get("je").money();
  });
  return paid;
}

std::string periodOf(const PaymentQuestion& question) {
  if (!question.xq.empty()) return question.xq;
  if (question.from && question.to) return "从 " + question.from->plain() + " 到 " + question.to->plain();
  return "入学以来全部信息";
}

// Writes the students for whom `decide` says so. It sees what each has paid (null: nothing), and adds what the row
// begins with.
template <class Decide>
std::optional<long long> fill(store::Store& store, const char* table, store::NewRows found,
                              const PaymentQuestion& question, base::DateTime now, const Seen& seen, Decide decide) {
  store::Unit unit(store);
  RecordSet(store, Sql::table(table)).removeAll();
  const auto paid = paidBy(store, question);
  const std::string period = periodOf(question), item = question.sfxm.empty() ? "无任何交费记录" : question.sfxm;
  const std::string moment = now.plain();
  long long count = 0, walked = 0;
  RecordSet students(store, studentsOf(question));
  store::forEach(students, [&](RecordSet& student) {
    const auto of = paid.find(base::trimmed(student.text("xh")));
    if (decide(of == paid.end() ? nullptr : &of->second, found)) {
      for (const char* column : {"xh", "xm", "bjmc", "lxdh", "sjhm"}) found.add(student.get(column));
      found.add(period, item, moment);
      ++count;
    }
    if (++walked % betweenNotices == 0 && seen) seen(student.get("xm").trimmed(), count);
  });
  found.finish();
  unit.finish();
  return walked == 0 ? std::nullopt : std::optional(count);
}

}  // namespace

std::optional<long long> listUnpaid(store::Store& store, const PaymentQuestion& question, base::DateTime now,
                                    const Seen& seen) {
  store::NewRows rows(store, "qfjl_wjf", {"xh", "xm", "bjmc", "lxdh", "sjhm", "xqrq", "sfxm", "bsh"});
  return fill(store, "qfjl_wjf", std::move(rows), question, now, seen,
              [](const Money* paid, store::NewRows&) { return paid == nullptr; });
}

std::optional<long long> listByPaid(store::Store& store, const PaymentQuestion& question, Money due, PaidAs wanted,
                                    base::DateTime now, const Seen& seen) {
  store::NewRows rows(store, "qfjl_je",
                      {"yjje", "sjje", "ce", "xh", "xm", "bjmc", "lxdh", "sjhm", "xqrq", "sfxm", "bsh"});
  return fill(store, "qfjl_je", std::move(rows), question, now, seen, [&](const Money* paid, store::NewRows& row) {
    const Money sum = paid ? *paid : Money();
    if (wanted == PaidAs::Less ? sum >= due : wanted == PaidAs::Exactly ? sum != due : sum <= due) return false;
    row.add(due, sum, due - sum);
    return true;
  });
}

}  // namespace arrears
