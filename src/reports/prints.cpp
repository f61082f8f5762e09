#include <unordered_map>

#include "reports/print.h"

namespace reports {
namespace {

using store::RecordSet;
using store::Sql;

// The telephone numbers come from the register, as it stands on the day of printing; each student is looked up once.
Also telephones(kit::Desk& desk) {
  struct Numbers {
    std::string lxdh, sjhm;
  };
  return [&desk, now = desk.clock.now().plain(), known = std::unordered_map<std::string, Numbers>()](
             RecordSet& from, RecordSet& to) mutable {
    const std::string xh = from.get("xh").text();
    const auto [found, isNew] = known.try_emplace(xh);
    if (isNew && !xh.empty()) {
      RecordSet student(desk.store, Sql("select lxdh,sjhm from xs where xh='") + xh + "'");
      if (!student.empty()) found->second = {student.get("lxdh").trimmed(), student.get("sjhm").trimmed()};
    }
    to.set("lxdh", found->second.lxdh);
    to.set("sjhm", found->second.sjhm);
    to.set("bsh", now);
  };
}

constexpr const char* noneComputed = "不存在能够打印的记录！";

}  // namespace

const std::vector<PrintPlan>& allPrints() {
  static const std::vector<PrintPlan> all{
      {.print = Print::Students, .report = "bbdy_xs", .from = "xs", .object = "学籍资料"},
      {.print = Print::StudentForms, .report = "bbdy_xs1", .from = "xs", .object = "学生信息空表"},
      {.print = Print::Payments, .report = "bbdy_jfjl", .from = "jfjl", .object = "交费记录汇总表", .asksFirst = true},
      {.print = Print::PaymentDetails,
       .report = "bbdy_jfjl1",
       .from = "jfjl",
       .object = "学生交费明细记录表",
       .asksFirst = true},
      {.print = Print::ArrearsDue,
       .report = "bbdy_qf1",
       .from = "qfjl",
       .object = "欠费应交学生名单",
       .also = telephones},
      {.print = Print::ArrearsProgress,
       .report = "bbdy_qf2",
       .from = "qfjl",
       .object = "欠费清交进度表",
       .also = telephones},
      {.print = Print::Unpaid, .report = "bbdy_qf3", .from = nullptr, .object = "未交费学生名单", .none = noneComputed},
      {.print = Print::Comparison,
       .report = "bbdy_qf4",
       .from = nullptr,
       .object = "应收与实收金额对比查询结果",
       .none = noneComputed},
      {.print = Print::Unsubmitted,
       .report = "bbdy_jfjl",
       .from = "jfjl",
       .object = nullptr,
       .none = "前台不存在您的未提交记录！      ",
       .asksFirst = true},
      {.print = Print::Suspensions,
       .report = "bbdy_xxfk",
       .from = "xxfk",
       .object = "休学复课记录",
       .none = "不存在能够打印的休学复课记录！   "},
      {.print = Print::Teachers, .report = "bbdy_js", .from = "js", .object = "教师档案资料"},
  };
  return all;
}

}  // namespace reports
