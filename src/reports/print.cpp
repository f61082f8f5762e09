#include "reports/print.h"

#include "kit/notice.h"
#include "reports/drawing.h"

namespace reports {
namespace {

using store::RecordSet;
using store::Sql;

}  // namespace

long long refill(kit::Desk& desk, const char* table, const Sql& source, const std::vector<std::string_view>& columns,
                 const Also& also) {
  kit::Notice notice(desk.progress);
  store::Unit unit(desk.store);
  RecordSet target(desk.store, Sql::table(table));
  target.removeAll();
  long long copied = 0;
  RecordSet rows(desk.store, source);
  store::forEach(rows, [&](RecordSet& row) {
    target.addNew();
    for (const std::string_view column : columns) target.set(column, row.get(column));
    if (also) also(row, target);
    target.update();
    notice.count("正在准备打印数据 ...", ++copied);
  });
  unit.finish();
  return copied;
}

std::vector<std::string_view> columnsOf(std::string_view table) {
  std::vector<std::string_view> names;
  for (const store::Column& column : store::findTable(table)->columns) names.push_back(column.name);
  return names;
}

bool mayPrint(kit::Desk& desk, const std::string& question, const std::string& title) {
  return desk.person.ask(kit::Box::AskWarning, question + "\n点“是”继续；否则，点“否”撤销此操作！ ", title);
}

void showReport(kit::Desk& desk, std::string_view name) {
  const Report& report = reportNamed(name);
  platform::Drawing drawing;
  {
    RecordSet rows(desk.store, Sql::table(report.table));
    if (rows.empty()) return;
    drawing = draw(report, rows, {desk.session.SchoolName, desk.clock.now()});
  }
  desk.printer.show(drawing);
}

void printList(kit::Desk& desk, const std::function<long long()>& fill, std::string_view report,
               const Question& question) {
  if (fill() == 0) return desk.person.tell(kit::Box::Information, question.none, question.noneTitle);
  if (mayPrint(desk, question.text)) showReport(desk, report);
}

}  // namespace reports
