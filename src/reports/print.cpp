#include "reports/print.h"

#include <algorithm>

#include "kit/notice.h"
#include "reports/drawing.h"

namespace reports {
namespace {

using store::RecordSet;
using store::Sql;

// Columns that both tables have.
std::vector<std::string_view> copied(const PrintPlan& plan, const Report& report) {
  std::vector<std::string_view> names;
  for (const store::Column& column : store::findTable(report.table)->columns)
    if (store::findTable(plan.from)->find(column.name)) names.push_back(column.name);
  return names;
}

void fill(kit::Desk& desk, const PrintPlan& plan, const Report& report, const Sql& source) {
  kit::Notice notice(desk.progress);
  const auto columns = copied(plan, report);
  const Also also = plan.also ? plan.also(desk) : Also();
  store::Unit unit(desk.store);
  RecordSet target(desk.store, Sql::table(report.table));
  target.removeAll();
  long long done = 0;
  RecordSet rows(desk.store, source);
  store::forEach(rows, [&](RecordSet& row) {
    target.addNew();
    for (const std::string_view column : columns) target.set(column, row.get(column));
    if (also) also(row, target);
    target.update();
    notice.count("正在准备打印数据 ...", ++done);
  });
  unit.finish();
}

}  // namespace

bool mayPrint(kit::Desk& desk, const std::string& question, const std::string& title) {
  return desk.person.ask(kit::Box::AskWarning, question + "\n点“是”继续；否则，点“否”撤销此操作！ ", title);
}

void showReport(kit::Desk& desk, const Report& report, const std::string& period) {
  platform::Drawing drawing;
  {
    RecordSet rows(desk.store, Sql::table(report.table));
    if (rows.empty()) return;
    drawing = draw(report, rows, {desk.session.SchoolName, desk.clock.now(), period});
  }
  desk.printer.show(drawing);
}

void printList(kit::Desk& desk, Print what, const Sql& filter) {
  const PrintPlan& plan = *std::ranges::find(allPrints(), what, &PrintPlan::print);
  const Report& report = reportNamed(plan.report);
  const auto agreed = [&] {
    return !plan.object ||
           mayPrint(desk, std::string("要打印") + plan.object + "吗？请确认打印机连接正常、打印纸准备就绪！" +
                              (plan.asksFirst ? "" : " "));
  };
  const Sql source = plan.from ? Sql::table(plan.from) + " " + filter : Sql::table(report.table);
  if (plan.from && !plan.asksFirst) fill(desk, plan, report, source);
  if (RecordSet(desk.store, source).empty()) return desk.person.tell(kit::Box::Information, plan.none, "信息提示");
  if (!agreed()) return;
  if (plan.asksFirst) fill(desk, plan, report, source);
  showReport(desk, report);
}

std::function<void(kit::Desk&, const kit::Filter&)> printing(Print what) {
  return [what](kit::Desk& desk, const kit::Filter& filter) { printList(desk, what, filter.where); };
}

}  // namespace reports
