#include "reports/report.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace reports {
namespace {

constexpr Shows day = Shows::Date, number = Shows::Number, money = Shows::Money;

std::vector<Report> studentReports() {
  return {
      {.name = "bbdy_xs",
       .title = "学生学籍资料表",
       .table = "dy_xs",
       .columns = {{"", "xh", 7}, {"姓名", "xm", 8}, {"性别", "xb", 4}, {"入学日期", "rxrq", 9, day}, {"班级或专业", "bjmc", 14}},
       .secondLine = {{"联系电话", "lxdh", 12}, {"家庭住址", "jtzz", 30}}},
      {.name = "bbdy_xs1",
       .title = "登记表",
       .table = "dy_xs",
       .columns = {{"学号", "xh", 8}, {"姓名", "xm", 6}, {"联系电话", "lxdh", 9}, {"", "", 6}, {"", "", 6}, {"", "", 6}, {"", "", 6}},
       .grid = true},
      {.name = "bbdy_cj",
       .title = "学生成绩报告单",
       .table = "cjb1",
       .columns = {{"学号", "xh", 7}, {"姓名", "xm", 5}, {"考试日期", "kssj", 6, day}, {"考试类型", "kslx", 6}, {"试卷类型", "sjlx", 6},
                   {"考试成绩", "kscj", 5, number}, {"平时成绩", "pscj", 5, number}, {"总成绩", "zcj", 5, number}}},
      {.name = "bbdy_xxfk",
       .title = "学生休学复课记录报表",
       .table = "dy_xxfk",
       .columns = {{"学号", "xh", 8}, {"姓名", "xm", 6}, {"院校班级", "bjmc", 12}, {"休学日期", "xxsj", 6, day}, {"复课日期", "fksj", 6, day}}},
  };
}

std::vector<Report> feeReports() {
  return {
      {.name = "bbdy_jfjl",
       .title = "收费记录汇总报表",
       .table = "dy_jfjl",
       .columns = {{"收据编号", "fpbh", 6}, {"姓名", "xm", 5}, {"班级名称", "bjmc", 10}, {"收费项目", "sfxm", 7}, {"交费日期", "jfrq", 6, day},
                   {"交费方式", "jffs", 5}, {"金额", "je", 6, money}, {"收款人", "skr", 5}},
       .sums = {{"je"}}},
      {.name = "bbdy_jfjl1",
       .title = "交费记录打印",
       .table = "dy_jfjl",
       .columns = {{"记录标识号", "lsh", 7}, {"学号", "xh", 6}, {"姓名", "xm", 4}, {"班级名称", "bjmc", 8}, {"学年学期", "xq", 8},
                   {"交费日期", "jfrq", 6, day}, {"收据编号", "fpbh", 5}, {"收费项目", "sfxm", 6}, {"金额", "je", 6, money}, {"收款人", "skr", 4}},
       .sums = {{"je"}}},
      {.name = "bbdy_qf1",
       .title = "应交费学生名单",
       .table = "dy_qfjl",
       .columns = {{"姓名", "xm", 5}, {"班级名称", "bjmc", 10}, {"联系电话", "lxdh", 7}, {"手机号码", "sjhm", 7}, {"收费项目", "sfxm", 7},
                   {"应交日期", "bjrq", 6, day}, {"应交金额", "bjje", 6, money}}},
      {.name = "bbdy_qf2",
       .title = "欠费收回进度报表",
       .table = "dy_qfjl",
       .columns = {{"姓名", "xm", 5}, {"班级名称", "bjmc", 10}, {"欠费日期", "bjrq", 6, day}, {"欠费金额", "bjje", 7, money},
                   {"补交日期", "sbjrq", 6, day}, {"补交金额", "sbjje", 7, money}, {"收款人", "skr", 5}},
       .sums = {{"bjje"}, {"sbjje"}}},
      {.name = "bbdy_qf3",
       .title = "未交费学生名单",
       .table = "qfjl_wjf",
       .columns = {{"姓名", "xm", 5}, {"所在班级", "bjmc", 9}, {"所属学期或日期区间", "xqrq", 10}, {"应交费项目", "sfxm", 8},
                   {"联系电话", "lxdh", 7}, {"手机号码", "sjhm", 7}}},
      {.name = "bbdy_qf4",
       .title = "应交费学生名单",
       .table = "qfjl_je",
       .columns = {{"姓名", "xm", 5}, {"班级名称", "bjmc", 8}, {"应交费项目", "sfxm", 7}, {"应交金额", "yjje", 6, money},
                   {"实交金额", "sjje", 6, money}, {"差额", "ce", 6, money}, {"联系电话", "lxdh", 7}, {"手机号码", "sjhm", 7}},
       .sums = {{"yjje", "应交总额："}, {"sjje", "实交总额："}, {"ce", "应交与实交差额："}}},
      {.name = "bbdy_kh",
       .title = "学校经营损益报表",
       .table = "dy_kh",
       .columns = {{"收费项目", "sfxm", 14}, {"序号", "bh", 4, number}, {"本期金额", "je", 10, money}, {"累计金额", "hjje", 10, money}},
       .sums = {{"je"}, {"hjje"}},
       .furniture = Furniture::TitleOnce,
       .total = "合   计"},
  };
}

std::vector<Report> staffAndPropertyReports() {
  return {
      {.name = "bbdy_js",
       .title = "教师档案资料报表",
       .table = "dy_js",
       .columns = {{"工号", "gh", 5}, {"姓名", "jsxm", 5}, {"性别", "xb", 3}, {"出生日期", "csrq", 6, day}, {"民族", "mz", 4}, {"婚否", "hf", 3},
                   {"政治面貌", "zzmm", 5}, {"联系电话", "lxdh", 7}, {"手机号码", "sjhm", 7}}},
      {.name = "bbdy_wpgl",
       .title = "教材教具后勤物资明细记录",
       .table = "dy_wpgl",
       .columns = {{"日期", "rq", 6, day}, {"摘要说明", "sm", 8}, {"商品名称", "wpmc", 8}, {"规格型号", "gg", 6}, {"单位", "dw", 3},
                   {"数量", "sl", 4, number}, {"单价", "dj", 5, money}, {"金额", "je", 6, money}, {"存放地点", "cfdd", 6}},
       .sums = {{"je"}}},
      {.name = "bbdy_kc",
       .title = "教材教具后勤物资库存信息报表",
       .table = "wpkc",
       .columns = {{"商品编号", "wpbh", 6}, {"商品名称", "wpmc", 10}, {"规格型号", "gg", 7}, {"单位", "dw", 3}, {"库存数量", "sl", 5, number},
                   {"平均单价", "dj", 6, money}, {"库存金额", "je", 7, money}},
       .sums = {{"je"}}},
      {.name = "bbdy_zsgl2",
       .title = "学生住宿信息报表",
       .table = "dy_zsgl2",
       .columns = {{"姓名", "xm", 5}, {"性别", "xb", 3}, {"班级名称", "bjmc", 10}, {"入住日期", "rq", 6, day}, {"宿舍楼名称", "loumc", 7},
                   {"宿舍编号", "ssbh", 5}, {"床位号", "cwh", 4}, {"收费标准", "zsfbz", 5, money}}},
  };
}

std::vector<Report> libraryReports() {
  return {
      {.name = "bbdy_tskc1",
       .title = "图书进销存明细记录报表",
       .table = "tskc1",
       .columns = {{"日期", "rq", 6, day}, {"摘要", "zy", 5}, {"说明", "sm", 6}, {"图书编号", "tsbh", 6}, {"图书名称", "tsmc", 11}, {"单位", "dw", 3},
                   {"数量", "sl", 4, number}, {"单价", "dj", 5, money}, {"金额", "je", 6, money}},
       .sums = {{"je"}}},
      {.name = "bbdy_tskclsb",
       .title = "图书库存信息报表",
       .table = "tskclsb",
       .columns = {{"图书编号", "tsbh", 7}, {"图书名称", "tsmc", 14}, {"单位", "dw", 3}, {"库存数量", "ljsl", 5, number},
                   {"平均单价", "kcdj", 6, money}, {"总价值", "kcje", 7, money}},
       .sums = {{"ljsl"}, {"kcje"}}},
      {.name = "bbdy_tskc2",
       .title = "图书借阅明细记录表",
       .table = "tskc1",
       .columns = {{"借阅日期", "rq", 6, day}, {"读者姓名", "dwmc", 6}, {"图书编号", "tsbh", 6}, {"图书名称", "tsmc", 11}, {"单位", "dw", 3},
                   {"数量", "sl", 4, number}, {"单价", "dj", 5, money}, {"金额", "je", 6, money}},
       .sums = {{"je"}},
       .furniture = Furniture::Library},
      {.name = "bbdy_tskc3",
       .title = "借阅图书超期罚款通知单",
       .table = "tskc1",
       .columns = {{"读者姓名", "dwmc", 6}, {"图书编号", "tsbh", 6}, {"图书名称", "tsmc", 11}, {"借阅日期", "rq", 6, day},
                   {"归还日期", "ghrqbz", 6, day}, {"超期天数", "tianshu", 5, number}, {"罚款总额", "fakuan", 6, money}},
       .furniture = Furniture::Library},
  };
}

}  // namespace

const std::vector<Report>& allReports() {
  static const std::vector<Report> all = [] {
    std::vector<Report> reports;
    for (auto part : {studentReports, feeReports, staffAndPropertyReports, libraryReports})
      for (Report& one : part()) reports.push_back(std::move(one));
    return reports;
  }();
  return all;
}

const Report& reportNamed(std::string_view name) {
  const auto& all = allReports();
  const auto found = std::ranges::find(all, name, &Report::name);
  if (found == all.end()) throw std::logic_error("there is no report " + std::string(name));
  return *found;
}

}  // namespace reports
