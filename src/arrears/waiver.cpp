#include "arrears/waiver.h"

#include "arrears/arrears_ledger.h"
#include "kit/rows.h"

namespace arrears {
namespace {

using kit::Box;
using store::RecordSet;

bool refuse(kit::Desk& desk, const char* text, const char* title = "信息提示") {
  desk.person.tell(Box::Information, text, title);
  return false;
}

// Nothing selected, or the row has gone, which is told.
bool nothing(kit::Desk& desk, std::int64_t selected) {
  if (selected == 0) return true;
  return !kit::standsStill(desk.store, "qfjl", selected) && !refuse(desk, changedMeanwhile);
}

bool decided(RecordSet& row) { return row.get("clfs").trimmed() == waived || row.get("clfs").trimmed() == settled; }

// A waived row shows as fully paid; the word in clfs alone tells it from one that brought money in.
bool askAndWaive(kit::Desk& desk, AskedArrears chosen, const char* question) {
  if (!desk.person.ask(Box::Ask, question, "操作提示")) return false;
  const bool done = chosen.each([&](RecordSet& row) {
    kit::writeRow(row, {{"sbjrq", desk.clock.today().iso()}, {"sbjje", row.get("bjje")}, {"clfs", waived}});
  });
  desk.person.tell(Box::Information, done ? "减免操作成功！     " : changedMeanwhile, "信息提示");
  return true;
}

}  // namespace

bool waiveOne(kit::Desk& desk, std::int64_t selected, WaivedFrom list) {
  if (nothing(desk, selected)) return selected != 0;
  RecordSet row = kit::rowAt(desk.store, "qfjl", selected);
  if (list == WaivedFrom::Overview) {
    if (decided(row))
      return refuse(desk,
                    row.get("clfs").trimmed() == waived ? "这已经是减免的记录！     " : "这是一条已结清的记录！     ");
    if (row.get("sbjje").money() >= row.get("bjje").money()) return false;
  }
  return askAndWaive(desk, {desk.store, selected}, "您确认是要减免此笔欠费吗？     ");
}

bool waiveAll(kit::Desk& desk, std::int64_t selected, WaivedFrom list) {
  if (nothing(desk, selected)) return selected != 0;
  const store::Sql all = rowsOfStudent(kit::rowAt(desk.store, "qfjl", selected).get("xh").trimmed());
  bool any = false;
  RecordSet rows(desk.store, all);
  store::forEach(rows, [&](RecordSet& row) { any = any || decided(row); });
  if (any && list == WaivedFrom::Overview)
    return refuse(desk, "您操作的记录中存在减免或结清记录，请单笔进行操作！     ", "操作提示");
  return askAndWaive(desk, {desk.store, all}, "您确认是要减免该生全部欠费吗？     ");
}

}  // namespace arrears
