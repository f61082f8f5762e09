#include "collection/submission.h"

#include "base/text.h"
#include "collection/payment_columns.h"
#include "kit/rights.h"
#include "reports/print.h"

namespace collection {

using store::RecordSet;
using store::Sql;

namespace {

// What the session's user has collected and not yet submitted.
Sql unsubmitted(const kit::Desk& desk, Sql selected = "select * from jfjl") {
  return selected + " where skr='" + desk.session.SessionUser + "' and sftj<>'*'";
}

}  // namespace

Formzctsf9::Formzctsf9(kit::Desk& all_of_it)
    : Screen(all_of_it, "Formzctsf9", "未提交收费记录明细"), list(*this, "list", paymentColumns) {
  list.menu = {&mine_entry, &all_entry};
  submit.onPress([this] { submitMine(); });
  print.onPress([this] { printMine(); });
  all.onPress([this] { listAll(); });
  all_entry.onPress([this] { listAll(); });
  mine_entry.onPress([this] { listMine(); });
  back.onPress([this] { close(); });
}

void Formzctsf9::load() {
  print.enable(kit::may(desk, kit::Collect));
  listMine();
}

void Formzctsf9::listMine() {
  setTitle("未提交收费记录明细");
  const base::Money total = fill(unsubmitted(desk) + " order by lsh");
  summary.set("收款人：" + desk.session.SessionUser + "，未提交记录数：" + base::caption(list.count()) +
              " 条，未提交金额：" + total.fixed2() + " 元");
}

void Formzctsf9::listAll() {
  if (!kit::may(desk, kit::SeeAllUnsubmitted)) return;
  setTitle("前台所有未提交收费记录明细");
  const base::Money total = fill("select * from jfjl where sftj<>'*' order by jfrq");
  summary.set("收费前台未提交记录数：" + base::caption(list.count()) + " 条，未提交金额：" + total.fixed2() + " 元");
}

base::Money Formzctsf9::fill(const Sql& sql) {
  base::Money total;
  RecordSet payments = rows(sql);
  list.fill(payments, [&](RecordSet& row) { total += row.get("je").money(); });
  return total;
}

void Formzctsf9::submitMine() {
  base::Money total;
  std::vector<std::int64_t> counted;
  RecordSet mine = rows(unsubmitted(desk, "select je from jfjl"));
  store::forEach(mine, [&](RecordSet& row) {
    total += row.get("je").money();
    counted.push_back(row.mark());
  });
  if (counted.empty()) return inform("前台不存在您的未提交记录！     ", "信息提示");
  if (!ask("您确认是要提交前台的收费记录到后台数据库中吗？    ", "操作提示")) return;
  if (!ask(
          "您在前台共有：" + base::caption(static_cast<long long>(counted.size())) + " 条收费记录；累计收费总额为：" +
              total.fixed2() +
              " 元！ \n提交前，您应该先打印出收费汇总报表！您确认继续吗？  \n选择“是”提交记录；否则点“否”撤销此操作！ ",
          "操作提示"))
    return;
  if (!submitted(counted, total)) {
    listMine();
    return warn("您的未提交记录已在其他计算机上改动，没有提交任何记录，请核对后重新提交！     ", "操作提示");
  }
  inform("记录提交完毕！     ", "信息提示");
  list.clear();
  summary.clear();
}

// Submits what was counted; what the user has collected at another computer meanwhile is not in the sum that was
// confirmed, and stays. False: not all of it is there as it was, and nothing is written.
bool Formzctsf9::submitted(const std::vector<std::int64_t>& counted, base::Money total) {
  store::Unit unit(desk.store);
  base::Money sum;
  bool asCounted = true;
  RecordSet mine = rows("select skr,sftj,je from jfjl");
  mine.visit(counted, [&](bool there) {
    asCounted &= there && mine.text("sftj") != "*" && base::sameText(mine.text("skr"), desk.session.SessionUser);
    if (asCounted) sum += mine.get("je").money();
  });
  if (!asCounted || sum != total) return false;
  mine.setMarked(counted, "sftj", "*");
  unit.finish();
  return true;
}

void Formzctsf9::printMine() {
  if (!kit::may(desk, kit::Collect)) return kit::refuse(desk);
  reports::printList(desk, reports::Print::Unsubmitted, unsubmitted(desk, {}) + " order by lsh");
}

}  // namespace collection
