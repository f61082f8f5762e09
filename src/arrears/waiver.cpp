#include "arrears/waiver.h"

#include "arrears/arrears_ledger.h"

namespace arrears {
namespace {

using kit::Box;
using store::RecordSet;

// A waived row shows as fully paid; the word in clfs alone tells it from one that brought money in.
void waive(RecordSet& row, base::Date today) {
  row.set("sbjrq", today.iso());
  row.set("sbjje", row.get("bjje"));
  row.set("clfs", waived);
  row.update();
}

bool decided(RecordSet& row) { return row.get("clfs").trimmed() == waived || row.get("clfs").trimmed() == settled; }

// Asks, waives the rows that the list may waive, and tells. What was settled at another desk while the question stood
// stays settled on the overview.
bool askAndWaive(kit::Desk& desk, const store::Sql& rows, WaivedFrom list, const char* question) {
  if (!desk.person.ask(Box::Ask, question, "操作提示")) return false;
  bool any = false;
  store::Unit unit(desk.store);
  RecordSet set(desk.store, rows);
  store::forEach(set, [&](RecordSet& row) {
    if (list == WaivedFrom::Overview && decided(row)) return;
    waive(row, desk.clock.today());
    any = true;
  });
  unit.finish();
  if (any) desk.person.tell(Box::Information, "减免操作成功！     ", "信息提示");
  return any;
}

// The overview's tests of a single row.
bool mayWaive(kit::Desk& desk, RecordSet& row) {
  const std::string state = row.get("clfs").trimmed();
  if (state == waived || state == settled) {
    desk.person.tell(Box::Information, state == waived ? "这已经是减免的记录！     " : "这是一条已结清的记录！     ",
                     "信息提示");
    return false;
  }
  return row.get("sbjje").money() < row.get("bjje").money();
}

}  // namespace

bool waiveOne(kit::Desk& desk, const std::string& lsh, WaivedFrom list) {
  RecordSet row(desk.store, rowOf(lsh));
  if (row.empty()) return false;
  if (list == WaivedFrom::Overview && !mayWaive(desk, row)) return false;
  return askAndWaive(desk, rowOf(lsh), list, "您确认是要减免此笔欠费吗？     ");
}

bool waiveAll(kit::Desk& desk, const std::string& lsh, WaivedFrom list) {
  RecordSet row(desk.store, rowOf(lsh));
  if (row.empty()) return false;
  const store::Sql all = rowsOfStudent(row.get("xh").trimmed());
  if (list == WaivedFrom::Overview) {
    bool any = false;
    RecordSet rows(desk.store, all);
    store::forEach(rows, [&](RecordSet& one) { any = any || decided(one); });
    if (any) {
      desk.person.tell(Box::Information, "您操作的记录中存在减免或结清记录，请单笔进行操作！     ", "操作提示");
      return false;
    }
  }
  return askAndWaive(desk, all, list, "您确认是要减免该生全部欠费吗？     ");
}

}  // namespace arrears
