#include "reports/export.h"

#include <algorithm>
#include <optional>

#include "base/text.h"
#include "kit/notice.h"
#include "kit/rows.h"

namespace reports {
namespace {

using kit::Box;
using platform::SheetCell;
using store::RecordSet;
using store::Sql;
using store::Value;

std::vector<std::string> headingsOf(const std::vector<std::string>& fields, const std::vector<Heading>& headings) {
  std::vector<std::string> result;
  for (const std::string& field : fields) {
    const auto found = std::find_if(headings.begin(), headings.end(),
                                    [&](const Heading& one) { return one.field == base::trim(field); });
    result.push_back(found == headings.end() ? "" : found->text);
  }
  return result;
}

SheetCell cellOf(const Value& value, bool date) {
  if (date) {
    if (const auto day = value.date()) return *day;
  }
  if (value.isNull()) return {};
  if (const auto* money = value.as<base::Money>()) return *money;
  if (const auto* number = value.as<double>()) return *number;
  return value.text();
}

// The pay items own the columns a0 to a28 by their rank.
std::vector<Heading> withPayItems(kit::Desk& desk, std::vector<Heading> headings) {
  static constexpr std::string_view columns[] = {"a0",  "a1",  "a2",  "a3",  "a4",  "a5",  "a6",  "a7",  "a8",  "a9",
                                                 "a10", "a11", "a12", "a13", "a14", "a15", "a16", "a17", "a18", "a19",
                                                 "a20", "a21", "a22", "a23", "a24", "a25", "a26", "a27", "a28"};
  const auto names = kit::columnTexts(desk.store, "select gzmc from gzmcb order by gzbh", "gzmc");
  for (std::size_t rank = 0; rank < std::min(names.size(), std::size(columns)); ++rank)
    headings.push_back({columns[rank], names[rank]});
  return headings;
}

std::vector<platform::SheetKind> kindsOf(const std::vector<store::Type>& types, const std::set<std::size_t>& dates) {
  using enum platform::SheetKind;
  std::vector<platform::SheetKind> kinds;
  for (const store::Type type : types) {
    const bool day = dates.contains(kinds.size());
    kinds.push_back(day ? Day : type == store::Type::Money ? Amount : type == store::Type::Number ? Number : Text);
  }
  return kinds;
}

platform::SheetPlan planOf(kit::Desk& desk, const std::string& title, std::vector<std::string> headings,
                           std::vector<platform::SheetKind> kinds) {
  return {
      desk.desktop.exportFolder(), title + " " + desk.clock.today().iso(), title, std::move(headings), std::move(kinds),
      desk.session.SessionUser};
}

std::filesystem::path write(kit::Desk& desk, const platform::SheetPlan& plan, RecordSet& rows, long long total,
                            const std::set<std::size_t>& dates) {
  const std::vector<std::string> fields = rows.fields();
  const std::string text = "正在导出" + plan.title + " ...";
  kit::Notice notice(desk.progress);
  const auto sheet = desk.sheets.create(plan);
  std::vector<SheetCell> cells(fields.size());
  long long done = 0;
  store::forEach(rows, [&](RecordSet& row) {
    notice.count(text, done++, total);
    for (std::size_t i = 0; i < fields.size(); ++i) cells[i] = cellOf(row.get(fields[i]), dates.contains(i));
    sheet->add(cells);
  });
  return sheet->finish();
}

void tooMany(kit::Desk& desk, long long total) {
  desk.person.tell(Box::Stop,
                   "需要导出的记录共 " + std::to_string(total) + " 条，超过一张表最多 " + std::to_string(mostRows) +
                       " 条的限制，没有导出任何记录。\n请先用查询缩小范围（如按班级、学期或日期），再分几次导出。",
                   kit::wrongInput);
}

void show(kit::Desk& desk, const std::string& title, const std::filesystem::path& file, long long total) {
  const bool opened = desk.desktop.openDocument(file);
  desk.person.tell(Box::Information,
                   "“" + title + "”已导出，共 " + std::to_string(total) + " 条记录，文件保存在：\n" + file.string() +
                       (opened ? "" : "\n未能启动电子表格程序，请到上述文件夹中打开此文件。"),
                   "信息提示");
}

}  // namespace

const Export& exportOf(List list) { return *std::ranges::find(allExports(), list, &Export::list); }

void exportToSheet(kit::Desk& desk, const std::string& sheetTitle, const Sql& sql, const std::vector<Heading>& headings,
                   const std::set<std::size_t>& dates) {
  std::filesystem::path file;
  long long total = 0;
  {
    RecordSet rows(desk.store, sql);
    total = rows.count();
    if (total > 0 && total <= mostRows)
      file = write(desk, planOf(desk, sheetTitle, headingsOf(rows.fields(), headings), kindsOf(rows.types(), dates)),
                   rows, total, dates);
  }
  if (total == 0) return desk.person.tell(Box::Stop, "没有需要导出的数据             ", "错误");
  if (total > mostRows) return tooMany(desk, total);
  show(desk, sheetTitle, file, total);
}

void exportList(kit::Desk& desk, List list, const Sql& filter) {
  const Export& what = exportOf(list);
  const std::string question = std::string("此操作将导出") + what.object + "为EXCEL格式表，您确认继续吗？      ";
  if (!desk.person.ask(Box::Ask, question, what.title)) return;
  const Sql sql = what.sql + filter;
  if (what.emptyListSaysSo && RecordSet(desk.store, sql).empty())
    return desk.person.tell(Box::Information, "不存在需要导出的数据！     ", "信息提示");
  exportToSheet(desk, filter.empty() ? what.all : what.byCondition, sql,
                what.payItems ? withPayItems(desk, what.headings) : what.headings, what.dates);
}

std::function<void(kit::Desk&, const kit::Filter&)> exporting(List list) {
  return [list](kit::Desk& desk, const kit::Filter& filter) { exportList(desk, list, filter.where); };
}

}  // namespace reports
