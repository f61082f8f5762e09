#include "reports/print_options.h"

namespace reports {

using store::Sql;

namespace {

template <class Options> std::vector<std::string> captionsOf(const Options& options) {
  std::vector<std::string> captions;
  for (const auto& one : options) captions.push_back(one.caption);
  return captions;
}

}  // namespace

PrintOptions::PrintOptions(kit::Desk& all, std::string own, std::string words, Sql where, std::vector<Option> options,
                           std::string prompt)
    : Screen(all, std::move(own), std::move(words)),
      what(*this, "what", captionsOf(options)),
      prompt_(std::move(prompt)) {
  print.onPress([this, where = std::move(where), options = std::move(options)] {
    printList(desk, options[static_cast<std::size_t>(what.chosen())].prints, where);
  });
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
                   {{"学籍资料表  [建议先导出为EXCEL表再打印]", Print::Students},
                    {"仅包含学号、姓名的空表，以备它用！", Print::StudentForms}},
                   "请选择您要打印成哪种样式的表 ...") {}

Formzctjfjldy::Formzctjfjldy(kit::Desk& all, Sql payment_where)
    : PrintOptions(all, "Formzctjfjldy", "交费记录打印选项", std::move(payment_where),
                   {{"学生交费记录汇总报表", Print::Payments}, {"后台学生交费明细记录表", Print::PaymentDetails}}) {}

std::vector<PrintOptions::Option> Formzctqfjldy::optionsOf(List arrears_list_mode) {
  if (arrears_list_mode == List::Unpaid) return {{"未交费学生名单", Print::Unpaid}};
  if (arrears_list_mode == List::Comparison) return {{"应交实交金额对比欠费学生名单", Print::Comparison}};
  return {{"到期应交欠费学生名单", Print::ArrearsDue}, {"各班欠费清交进度报表", Print::ArrearsProgress}};
}

Formzctqfjldy::Formzctqfjldy(kit::Desk& all, Sql arrears_where, List arrears_list_mode)
    : PrintOptions(all, "Formzctqfjldy", "学生欠费信息打印选项", std::move(arrears_where),
                   optionsOf(arrears_list_mode)) {}

}  // namespace reports
