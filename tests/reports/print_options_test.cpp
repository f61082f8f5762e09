#include "reports/print_options.h"

#include "support/test_desk.h"

namespace reports {
namespace {

using kit::Box;
using support::opened;

struct PrintDesk : support::TestDesk {
  PrintDesk() {
    add("xs", {{"xh", "1001"}, {"xm", "王小明"}, {"lxdh", "0791-1"}, {"sjhm", "138"}});
    add("xs", {{"xh", "1002"}, {"xm", "张三"}});
    for (const char* xh : {"1001", "1002", "1009", "1001"})
      add("qfjl", {{"lsh", xh}, {"xh", xh}, {"bjje", 10}, {"sbjje", 0}});
    add("jfjl", {{"lsh", "1"}, {"xh", "1001"}, {"je", 5}});
    add("qfjl_wjf", {{"xh", "1001"}});
  }
  PrintDesk& asked(const std::string& question, bool yes = true) {
    person.answer(yes, Box::AskWarning, question + "\n点“是”继续；否则，点“否”撤销此操作！ ", "信息提示");
    return *this;
  }
  std::string lastTitle() { return printer.shown.empty() ? "" : printer.shown.back().title; }
};

TEST(PrintOptions, ArrearsTakeTheTelephoneFromTheStudent) {
  PrintDesk desk;
  desk.add("dy_qfjl", {{"xh", "old"}});
  auto s = opened<Formzctqfjldy>(desk);
  desk.asked("要打印欠费应交学生名单吗？请确认打印机连接正常、打印纸准备就绪！ ", false);
  s->print.press();
  EXPECT_EQ(desk.dump("dy_qfjl", "xh|lxdh|sjhm|bsh"),
            "1001|0791-1|138|2026-9-7 8:30:05\n1002|||2026-9-7 8:30:05\n1009|||2026-9-7 "
            "8:30:05\n1001|0791-1|138|2026-9-7 8:30:05\n");
  EXPECT_EQ(desk.lastTitle(), "");  // a No leaves the table filled
  desk.asked("要打印欠费应交学生名单吗？请确认打印机连接正常、打印纸准备就绪！ ");
  s->print.press();
  EXPECT_EQ(desk.lastTitle(), "应交费学生名单");
  s->what.choose(1);
  desk.asked("要打印欠费清交进度表吗？请确认打印机连接正常、打印纸准备就绪！ ");
  s->print.press();
  EXPECT_EQ(desk.lastTitle(), "欠费收回进度报表");
}

TEST(PrintOptions, TheListModeDecidesWhatOfArrearsIsPrinted) {
  PrintDesk desk;
  desk.asked("要打印未交费学生名单吗？请确认打印机连接正常、打印纸准备就绪！ ");
  opened<Formzctqfjldy>(desk, store::Sql(), List::Unpaid)->print.press();
  EXPECT_EQ(desk.lastTitle(), "未交费学生名单");
  EXPECT_EQ(desk.count("select * from qfjl_wjf"), 1);
  desk.person.expect(Box::Information, "不存在能够打印的记录！", "信息提示");
  opened<Formzctqfjldy>(desk, store::Sql(), List::Comparison)->print.press();
}

TEST(PrintOptions, StudentsAndPaymentsFollowTheConsolesFilter) {
  PrintDesk desk;
  desk.asked("要打印学生信息空表吗？请确认打印机连接正常、打印纸准备就绪！ ");
  auto students = opened<Formzctxsdy>(desk, store::Sql(" where xh='1002'"));
  students->what.choose(1);
  students->print.press();
  EXPECT_EQ(desk.dump("dy_xs", "xm"), "张三\n");
  EXPECT_EQ(desk.lastTitle(), "登记表");

  auto payments = opened<Formzctjfjldy>(desk);
  desk.asked("要打印交费记录汇总表吗？请确认打印机连接正常、打印纸准备就绪！", false);
  payments->print.press();
  EXPECT_EQ(desk.count("select * from dy_jfjl"), 0);  // asked first: a No fills nothing
  payments->what.choose(1);
  desk.asked("要打印学生交费明细记录表吗？请确认打印机连接正常、打印纸准备就绪！");
  payments->print.press();
  EXPECT_EQ(desk.lastTitle(), "交费记录打印");
  desk.person.expect(Box::Information, "不存在需要打印的数据！  ", "信息提示");
  opened<Formzctjfjldy>(desk, store::Sql(" where xh='9'"))->print.press();
}

TEST(Prints, EveryListFillsWhatItsReportShows) {
  for (const PrintPlan& plan : allPrints()) {
    if (!plan.from) continue;
    PrintDesk desk;
    store::RecordSet(desk.store, store::Sql::table(plan.from)).removeAll();
    std::vector<std::pair<std::string_view, store::Value>> full;
    for (const store::Column& column : store::findTable(plan.from)->columns)
      if (column.type != store::Type::Bytes)
        full.emplace_back(column.name,
                          column.type == store::Type::Date ? store::Value(base::Date{2026, 9, 7}) : "1001");
    desk.add("xs", {{"xh", "1001"}, {"lxdh", "1"}, {"sjhm", "2"}});
    desk.add(plan.from, full);
    if (plan.object)
      desk.asked(std::string("要打印") + plan.object + "吗？请确认打印机连接正常、打印纸准备就绪！" +
                 (plan.asksFirst ? "" : " "));
    printList(desk.desk, plan.print, store::Sql(" where ") + store::Sql::column(full.front().first) + "='1001'");
    const Report& report = reportNamed(plan.report);
    EXPECT_EQ(desk.lastTitle(), report.title);
    store::RecordSet printed(desk.store, store::Sql::table(report.table));
    printed.last();
    for (const auto* line : {&report.columns, &report.secondLine})
      for (const Column& column : *line)
        EXPECT_FALSE(*column.column && printed.get(column.column).empty()) << report.name << " " << column.column;
  }
}

}  // namespace
}  // namespace reports
