#include "reports/income_statement.h"

#include "base/text.h"
#include "kit/at_exit.h"
#include "kit/notice.h"
#include "reports/income.h"
#include "reports/print.h"

namespace reports {

using kit::Format;
using kit::Session;
using store::RecordSet;
using store::Sql;

Formkh1::Formkh1(kit::Desk& all) : Screen(all, "Formkh1", "") {
  notice.set("正在执行您的设置 ...");
  timer.onTick([this] {
    timer.stop();
    work();
  });
}

void Formkh1::load() {
  if (desk.session.EditMode == openStatement) {
    desk.session.statement_year = desk.clock.today().year;
    desk.session.statement_month = desk.clock.today().month;
  }
  timer.start();
}

void Formkh1::work() {
  const kit::Mode order = desk.session.EditMode;
  {
    const kit::AtExit leaving([this] { close(); });  // also by a fault: it has no other way out
    compute();
    if (order == printStatement) print();
  }
  if (order == openStatement) open<Formkh>();
}

void Formkh1::compute() {
  const int year = desk.session.statement_year, month = desk.session.statement_month;
  kit::Notice progress(desk.progress);
  desk.session.income = {year, month, computeIncome(desk.store, {year, month}, [&](const std::string& item) {
                           notice.set("正在统计" + item + "信息 ...");
                           progress.show(notice.text());
                         })};
}

void Formkh1::print() {
  const std::string now = desk.clock.now().plain();
  {
    store::Unit unit(desk.store);
    RecordSet lines = rows("select * from dy_kh");
    lines.removeAll();
    int number = 0;
    for (const Session::IncomeLine& line : desk.session.income.lines) {
      lines.addNew();
      lines.set("bh", ++number);
      lines.set("sfxm", line.item);
      lines.set("je", line.month);
      lines.set("hjje", line.year);
      lines.set("bsh", now);
      lines.update();
    }
    unit.finish();
  }
  if (mayPrint(desk, "要打印经营损益表数据吗？请确认打印机连接正常、打印纸准备就绪！ ", ""))
    showReport(desk, "bbdy_kh");
}

// The headings are those of another list; the office has read its statement under them for years.
Formkh::Formkh(kit::Desk& all)
    : Screen(all, "Formkh", "学校经营情况统计分析"),
      list(*this, "list",
           {{"学号", "", Format::Text, 16},
            {"姓名", "", Format::Text, 5},
            {"所在班级", "", Format::Padded, 10},
            {"交费所属学期", "", Format::Padded, 10}}) {
  previous.link = next.link = true;
  previous.setTip("前一个月");
  next.setTip("后一个月");
  print.setTip("单击打印");
  back.setTip("单击返回");
  period.prominent = true;
  for (kit::Field* total : {&month_total, &year_total}) total->rightAligned = true;
  previous.onPress([this] { toPrevious(); });
  next.onPress([this] { toNext(); });
  print.onPress([this] { work(printStatement); });
  back.onPress([this] { close(); });
}

void Formkh::load() { show(); }

void Formkh::work(kit::Mode order) {
  desk.session.EditMode = order;
  open<Formkh1>();
  if (order == refreshStatement) show();
}

void Formkh::show() {
  const Session::Income& income = desk.session.income;
  // A period that could not be computed is not the shown one: the links go on from what stands here.
  desk.session.statement_year = income.year;
  desk.session.statement_month = income.month;
  list.clear();
  base::Money month, year;
  long long number = 0;
  for (const Session::IncomeLine& line : income.lines) {
    list.addRow({"  " + line.item, base::caption(++number), incomeCell(line.month), incomeCell(line.year)});
    month += line.month;
    year += line.year;
  }
  month_total.set(month.fixed2());
  year_total.set(year.fixed2());
  period.set(base::caption(income.year) + "年" + base::caption(income.month) + "月份数据");
}

void Formkh::toPrevious() {
  int &year = desk.session.statement_year, &month = desk.session.statement_month;
  if (month == 1) --year;
  month = month == 1 ? 12 : month - 1;
  work(refreshStatement);
}

void Formkh::toNext() {
  int &year = desk.session.statement_year, &month = desk.session.statement_month;
  const base::Date today = desk.clock.today();
  if (year == today.year && month == today.month) return;
  if (month == 12) ++year;
  month = month == 12 ? 1 : month + 1;
  work(refreshStatement);
}

}  // namespace reports
