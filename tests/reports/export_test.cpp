#include "reports/export.h"

#include <gmock/gmock.h>

#include "base/text.h"
#include "support/test_desk.h"

namespace reports {
namespace {

using kit::Box;
using platform::SheetCell;
using store::Type;

std::string shown(const SheetCell& cell) {
  if (const auto* text = std::get_if<std::string>(&cell)) return *text;
  if (const auto* number = std::get_if<double>(&cell)) return "#" + base::plainNumber(*number);
  if (const auto* money = std::get_if<base::Money>(&cell)) return "¥" + money->plain();
  if (const auto* day = std::get_if<base::Date>(&cell)) return "@" + day->iso();
  return "";
}

std::string joined(const std::vector<SheetCell>& row) {
  std::vector<std::string> cells;
  for (const SheetCell& cell : row) cells.push_back(shown(cell));
  return base::join(cells, "|");
}

struct ExportDesk : support::TestDesk {
  // The person agrees to export a list and hears where it is.
  void agree(List list, long long rows, const std::string& title, const char* question = "信息提示") {
    const std::string object = exportOf(list).object;
    person.answer(true, Box::Ask, "此操作将导出" + object + "为EXCEL格式表，您确认继续吗？      ", question);
    told(title, rows);
  }
  void told(const std::string& title, long long rows, const std::string& more = "") {
    const auto file = desktop.exportFolder() / (title + " 2026-09-07.xlsx");
    person.expect(
        Box::Information,
        "“" + title + "”已导出，共 " + std::to_string(rows) + " 条记录，文件保存在：\n" + file.string() + more,
        "信息提示");
  }
  const support::RecordedSheet& last() const { return sheets.kept.back(); }
};

TEST(Export, EveryListKeepsItsColumnsAndTheirKinds) {
  for (const Export& wanted : allExports()) {
    SCOPED_TRACE(wanted.all);
    ExportDesk desk;
    for (int rank = 0; rank < 29; ++rank)
      desk.add("gzmcb", {{"gzbh", std::to_string(101 + rank)}, {"gzmc", "工资项目" + std::to_string(rank)}});
    const std::string_view statement = wanted.sql.text();
    const std::string name = base::trim(statement.substr(statement.rfind("from ") + 5));
    const store::Table& table = *store::findTable(name);
    std::vector<std::pair<std::string_view, store::Value>> full, empty{{table.columns[0].name, "1"}};
    for (const store::Column& column : table.columns) {
      if (column.type == Type::Text) full.emplace_back(column.name, "3601022008090100");
      if (column.type == Type::Number) full.emplace_back(column.name, 2.5);
      if (column.type == Type::Money) full.emplace_back(column.name, "12.3456");
      if (column.type == Type::Date) full.emplace_back(column.name, base::Date{2026, 9, 7});
      if (column.type == Type::Date && &column != &table.columns[0]) empty.emplace_back(column.name, "");
    }
    desk.add(name, full);
    desk.add(name, empty);
    desk.agree(wanted.list, 2, wanted.all, wanted.title);
    exportList(desk.desk, wanted.list);

    const support::RecordedSheet& sheet = desk.last();
    const std::vector<std::string> fields = store::RecordSet(desk.store, wanted.sql).fields();
    EXPECT_TRUE(sheet.finished);
    EXPECT_THAT(sheet.plan.headings, testing::Each(testing::Ne("")));
    ASSERT_EQ(sheet.plan.headings.size(), fields.size());
    ASSERT_EQ(sheet.rows.size(), 2U);
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const Type type = table.find(fields[i])->type;
      const char* cell = type == Type::Number  ? "#2.5"
                         : type == Type::Money ? "¥12.3456"
                         : type == Type::Date  ? "@2026-09-07"
                                               : "3601022008090100";
      EXPECT_EQ(shown(sheet.rows[0][i]), cell) << fields[i];
      EXPECT_EQ(shown(sheet.rows[1][i]), &table.columns[0] == table.find(fields[i]) ? "1" : "") << fields[i];
    }
    EXPECT_EQ(desk.desktop.documents.size(), 1U);
    EXPECT_FALSE(desk.progress.shown);
  }
}

TEST(Export, OneFieldIsHeadedDifferentlyInDifferentLists) {
  ExportDesk desk;
  const auto headings = [&](List list, const char* table) {
    if (desk.count(store::Sql::table(table)) == 0) desk.add(table, {{"bsh", "1"}});
    desk.agree(list, 1, exportOf(list).all, exportOf(list).title);
    exportList(desk.desk, list);
    return base::join(desk.last().plan.headings, "|");
  };
  EXPECT_EQ(headings(List::Payments, "jfjl"),
            "记录标识号|学号|姓名|院校及班级名称|交费所属学年学期|交费日期|交费方式|收据编号|收费项目名称|交费金额|"
            "是否提交|收款人");
  EXPECT_EQ(
      headings(List::GraduatePayments, "bys_jfjl"),
      "记录标识号|学号|姓名|院校及班级名称|交费所属学年学期|交费日期|收据编号|收费项目名称|交费金额|是否提交|收款人");
  EXPECT_EQ(headings(List::AssetDesk, "wpgl").substr(0, std::string("类编号|类名称|登录日期").size()),
            "类编号|类名称|登录日期");
  // Two pay items: the columns behind them have no name.
  desk.add("gzmcb", {{"gzbh", "201"}, {"gzmc", "房租"}});
  desk.add("gzmcb", {{"gzbh", "101"}, {"gzmc", "基本工资"}});
  EXPECT_EQ(headings(List::PayrollHistory, "gzlsb"), "工号|教师姓名|月份|基本工资|房租" + std::string(27, '|'));
}

TEST(Export, AFilterChoosesRowsAndTitle) {
  ExportDesk desk;
  for (const char* xh : {"1001", "1002", "1001"}) desk.add("jfjl", {{"xh", xh}, {"je", "300"}, {"jfrq", "2026-9-7"}});
  desk.agree(List::Payments, 2, "按查询条件导出的学员交费记录");
  exportList(desk.desk, List::Payments, " where xh='1001' order by fpbh");
  EXPECT_EQ(joined(desk.last().rows[1]), "|1001||||@2026-09-07||||¥300||");
  EXPECT_EQ(desk.last().plan.title, "按查询条件导出的学员交费记录");
  EXPECT_EQ(desk.last().plan.fileName, "按查询条件导出的学员交费记录 2026-09-07");
}

TEST(Export, ARefusalAndAnEmptyListLeaveNoSheet) {
  ExportDesk desk;
  desk.add("jfjl", {{"xh", "1001"}});
  const std::string question = "此操作将导出交费记录为EXCEL格式表，您确认继续吗？      ";
  desk.person.answer(false, Box::Ask, question, "信息提示")
      .answer(true, Box::Ask, question, "信息提示")
      .expect(Box::Stop, "没有需要导出的数据             ", "错误")
      .answer(true, Box::Ask, "此操作将导出学生住宿信息为EXCEL格式表，您确认继续吗？      ", "操作提示")
      .expect(Box::Information, "不存在需要导出的数据！     ", "信息提示");
  exportList(desk.desk, List::Payments);
  exportList(desk.desk, List::Payments, " where xh='9'");
  exportList(desk.desk, List::Boarders);
  EXPECT_TRUE(desk.sheets.kept.empty());
}

TEST(Export, ASheetTakesSoManyRowsAndNoMore) {
  ExportDesk desk;
  {
    store::Unit unit(desk.store);
    store::RecordSet units(desk.store, "select * from rxxs");
    for (long long i = 0; i < mostRows; ++i) {
      units.addNew();
      units.set("rxxs", "统招");
      units.update();
    }
    unit.finish();
  }
  desk.told("入学形式", mostRows, "\n未能启动电子表格程序，请到上述文件夹中打开此文件。");
  desk.desktop.opensDocuments = false;
  const auto exported = [&] {
    exportToSheet(desk.desk, "入学形式", "select rxxs,bsh from rxxs", {{"rxxs", "入学形式"}}, {});
  };
  exported();
  EXPECT_EQ(desk.last().rows.size(), static_cast<std::size_t>(mostRows));
  EXPECT_THAT(desk.last().plan.headings, testing::ElementsAre("入学形式", ""));
  EXPECT_GT(desk.progress.texts.size(), 60U);

  desk.add("rxxs", {{"rxxs", "单招"}});
  desk.person.expect(Box::Stop,
                     "需要导出的记录共 32768 条，超过一张表最多 32767 条的限制，没有导出任何记录。\n"
                     "请先用查询缩小范围（如按班级、学期或日期），再分几次导出。",
                     "错误提示");
  exported();
  EXPECT_EQ(desk.sheets.kept.size(), 1U);
}

}  // namespace
}  // namespace reports
