#include "reports/print_options.h"

#include "reports/print.h"

namespace reports {

using store::RecordSet;
using store::Sql;

PrintOptions::PrintOptions(kit::Desk& all, std::string own, std::string words, Sql filter,
                           std::vector<std::string> options, std::string prompt)
    : Screen(all, std::move(own), std::move(words)),
      what(*this, "what", std::move(options)),
      where(std::move(filter)),
      prompt_(std::move(prompt)) {
  print.onPress([this] { printChosen(); });
  back.onPress([this] { close(); });
}

kit::Layout PrintOptions::layout() {
  using namespace kit;
  Nodes nodes;
  if (!prompt_.empty()) nodes.push_back(note(prompt_));
  nodes.push_back(what);
  nodes.push_back(buttons({print, back}));
  return {.root = column(std::move(nodes)), .confirm = &print, .cancel = &back};
}

Formzctxsdy::Formzctxsdy(kit::Desk& all, Sql student_where)
    : PrintOptions(all, "Formzctxsdy", "学籍资料打印选项", std::move(student_where),
                   {"学籍资料表  [建议先导出为EXCEL表再打印]", "仅包含学号、姓名的空表，以备它用！"},
                   "请选择您要打印成哪种样式的表 ...") {}

void Formzctxsdy::printChosen() {
  const auto fill = [this] { return refill(desk, "dy_xs", Sql("select * from xs ") + where, columnsOf("dy_xs")); };
  if (what.chosen() == 0)
    printList(desk, fill, "bbdy_xs", {"要打印学籍资料吗？请确认打印机连接正常、打印纸准备就绪！ "});
  else printList(desk, fill, "bbdy_xs1", {"要打印学生信息空表吗？请确认打印机连接正常、打印纸准备就绪！ "});
}

Formzctjfjldy::Formzctjfjldy(kit::Desk& all, Sql payment_where)
    : PrintOptions(all, "Formzctjfjldy", "交费记录打印选项", std::move(payment_where),
                   {"学生交费记录汇总报表", "后台学生交费明细记录表"}) {}

// Unlike the other lists it asks before the print table is filled.
void Formzctjfjldy::printChosen() {
  const Sql chosen = Sql("select * from jfjl") + where;
  if (rows(chosen).empty()) return inform("不存在需要打印的数据！  ", "信息提示");
  const bool summary = what.chosen() == 0;
  if (!mayPrint(desk, summary ? "要打印交费记录汇总表吗？请确认打印机连接正常、打印纸准备就绪！"
                              : "要打印学生交费明细记录表吗？请确认打印机连接正常、打印纸准备就绪！"))
    return;
  refill(desk, "dy_jfjl", chosen, columnsOf("dy_jfjl"));
  showReport(desk, summary ? "bbdy_jfjl" : "bbdy_jfjl1");
}

namespace {

std::vector<std::string> arrearsOptions(List holds) {
  if (holds == List::Unpaid) return {"未交费学生名单"};
  if (holds == List::Comparison) return {"应交实交金额对比欠费学生名单"};
  return {"到期应交欠费学生名单", "各班欠费清交进度报表"};
}

}  // namespace

Formzctqfjldy::Formzctqfjldy(kit::Desk& all, Sql arrears_where, List arrears_list_mode)
    : PrintOptions(all, "Formzctqfjldy", "学生欠费信息打印选项", std::move(arrears_where),
                   arrearsOptions(arrears_list_mode)),
      arrears_list_mode_(arrears_list_mode) {}

void Formzctqfjldy::printChosen() {
  const std::string none = "不存在能够打印的记录！";
  if (arrears_list_mode_ == List::Unpaid)
    printList(desk, [this] { return rows("select * from qfjl_wjf").count(); }, "bbdy_qf3",
              {"要打印未交费学生名单吗？请确认打印机连接正常、打印纸准备就绪！ ", none});
  else if (arrears_list_mode_ == List::Comparison)
    printList(desk, [this] { return rows("select * from qfjl_je").count(); }, "bbdy_qf4",
              {"要打印应收与实收金额对比查询结果吗？请确认打印机连接正常、打印纸准备就绪！ ", none});
  else printArrears();
}

void Formzctqfjldy::printArrears() {
  const auto fill = [this] { return copyArrears(); };
  if (what.chosen() == 0)
    printList(desk, fill, "bbdy_qf1", {"要打印欠费应交学生名单吗？请确认打印机连接正常、打印纸准备就绪！ "});
  else printList(desk, fill, "bbdy_qf2", {"要打印欠费清交进度表吗？请确认打印机连接正常、打印纸准备就绪！ "});
}

long long Formzctqfjldy::copyArrears() {
  const base::DateTime now = desk.clock.now();
  store::Unit unit(desk.store);
  const long long copied =
      refill(desk, "dy_qfjl", Sql("select * from qfjl") + where, columnsOf("qfjl"), [&](RecordSet&, RecordSet& to) {
        to.set("bsh", now.plain());
        to.set("lxdh", "");
        to.set("sjhm", "");
      });
  // Ordered by student, so that each is looked up once however many arrears they have.
  RecordSet printed = rows("select * from dy_qfjl order by xh");
  std::string last, lxdh, sjhm;
  store::forEach(printed, [&](RecordSet& row) {
    const std::string xh = row.get("xh").text();
    if (xh.empty()) return;
    if (xh != last) {
      last = xh;
      RecordSet student = rows(Sql("select * from xs where xh='") + xh + "'");
      const bool known = !student.empty();
      lxdh = known ? student.get("lxdh").trimmed() : "";
      sjhm = known ? student.get("sjhm").trimmed() : "";
    }
    row.set("lxdh", lxdh);
    row.set("sjhm", sjhm);
    row.update();
  });
  unit.finish();
  return copied;
}

}  // namespace reports
