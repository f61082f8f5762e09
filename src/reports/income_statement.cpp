#include "reports/income_statement.h"

#include "base/text.h"
#include "kit/at_exit.h"
#include "kit/notice.h"
#include "kit/rows.h"
#include "reports/print.h"

namespace reports {

using kit::Format;

namespace {

std::string nameOf(Period period) {
  return base::caption(period.statement_year) + "年" + base::caption(period.statement_month) + "月份";
}

}  // namespace

Formkh1::Formkh1(kit::Desk& all, kit::Mode order, Period period)
    : Screen(all, "Formkh1", ""), EditMode(order), period_(period) {
  notice.set("正在执行您的设置 ...");
  timer.onceTicked([this] { work(); });
}

void Formkh1::work() {
  {
    const kit::AtExit leaving([this] { close(); });  // also by a fault: it has no other way out
    compute();
    if (EditMode == printStatement) print();
  }
  if (EditMode == openStatement) open<Formkh>(*answer);
}

void Formkh1::compute() {
  const base::Date today = desk.clock.today();
  const Period asked = EditMode == openStatement ? Period{today.year, today.month} : period_;
  kit::Notice progress(desk.progress);
  answer = computeIncome(desk.store, asked, [&](const std::string& item) {
    notice.set("正在统计" + item + "信息 ...");
    progress.show(notice.text());
  });
}

void Formkh1::print() {
  const std::string now = desk.clock.now().plain();
  {
    store::Unit unit(desk.store);
    store::RecordSet lines = rows("select * from dy_kh");
    lines.removeAll();
    int number = 0;
    for (const IncomeLine& line : answer->lines)
      kit::addRow(lines,
                  {{"bh", ++number}, {"sfxm", line.item}, {"je", line.month}, {"hjje", line.year}, {"bsh", now}});
    unit.finish();
  }
  if (mayPrint(desk, "要打印经营损益表数据吗？请确认打印机连接正常、打印纸准备就绪！ ", ""))
    showReport(desk, reportNamed("bbdy_kh"), nameOf(answer->period));
}

// The headings are those of another list; the office has read its statement under them for years.
Formkh::Formkh(kit::Desk& all, Income income)
    : Screen(all, "Formkh", "学校经营情况统计分析"),
      list(*this, "list",
           {{"学号", "", Format::Text, 16},
            {"姓名", "", Format::Text, 5},
            {"所在班级", "", Format::Padded, 10},
            {"交费所属学期", "", Format::Padded, 10}}),
      income_(std::move(income)) {
  list.setTip("各列依次为：收费项目、序号、本月金额、全年金额");  // the headings are those of the office's old book
  previous.link = next.link = true;
  previous.setTip("前一个月");
  next.setTip("后一个月");
  print.setTip("单击打印");
  back.setTip("单击返回");
  period.prominent = true;
  for (kit::Field* total : {&month_total, &year_total}) total->rightAligned = true;
  previous.onPress([this] { toPrevious(); });
  next.onPress([this] { toNext(); });
  print.onPress([this] { open<Formkh1>(printStatement, income_.period); });
  back.onPress([this] { close(); });
}

void Formkh::show() {
  list.clear();
  base::Money month, year;
  long long number = 0;
  for (const IncomeLine& line : income_.lines) {
    list.addRow({"  " + line.item, base::caption(++number), incomeCell(line.month), incomeCell(line.year)});
    month += line.month;
    year += line.year;
  }
  month_total.set(month.fixed2());
  year_total.set(year.fixed2());
  period.set(nameOf(income_.period) + "数据");
}

// A period that could not be computed is not the shown one: the links go on from what stands here.
void Formkh::refresh(Period asked) {
  auto computed = open<Formkh1>(refreshStatement, asked);
  if (!computed) return;
  income_ = std::move(*computed);
  show();
}

void Formkh::toPrevious() {
  const auto [year, month] = income_.period;
  refresh(month == 1 ? Period{year - 1, 12} : Period{year, month - 1});
}

void Formkh::toNext() {
  const auto [year, month] = income_.period;
  const base::Date today = desk.clock.today();
  if (year == today.year && month == today.month) return;
  refresh(month == 12 ? Period{year + 1, 1} : Period{year, month + 1});
}

}  // namespace reports
