#include "figures.h"

#include <stdexcept>

#include "arrears/comparison.h"
#include "collection/submission.h"
#include "shell/statistics.h"

namespace bench {
namespace {

constexpr int runs = 15, submitted = 5000;

Seconds scan(Office& office, const std::vector<const char*>& statements) {
  return timed([&] {
    for (const char* sql : statements)
      if (office.bare.prepare(sql).readAll() == 0) throw std::runtime_error(std::string("nothing to add up: ") + sql);
  });
}

Measure adding(Office& office, std::string what, std::vector<const char*> statements,
               std::function<shell::Statistics(store::Store&)> compute) {
  return {std::move(what), 1.5, runs, [&office, statements] { return scan(office, statements); },
          [&office, compute] {
            return timed([&] {
              if (compute(office.store).first.empty()) throw std::runtime_error("no statistics");
              office.store.settle();
            });
          }};
}

}  // namespace

Measure studentFigures(Office& office) {
  return adding(office, "statistics of " + std::to_string(office.rows("xs")) + " students",
                {"select bjmc, xb, xtbh from xs", "select bjmc from bjzl order by bjdh", "select * from zymcb"},
                shell::studentStatistics);
}

Measure paymentFigures(Office& office) {
  return adding(office, "statistics of " + std::to_string(office.rows("jfjl")) + " payments",
                {"select sfxm, je, sftj, skr, jfrq from jfjl"}, shell::paymentStatistics);
}

Measure arrearsFigures(Office& office) {
  return adding(office, "statistics of " + std::to_string(office.rows("qfjl")) + " arrears rows",
                {"select bjmc, xh, bjje, sbjje from qfjl where sbjje < bjje and clfs <> '减免'",
                 "select bjmc, bjje, sbjje, clfs from qfjl where substr(bjrq, 6, 2) = '11'",
                 "select bjmc from bjzl order by bjdh"},
                [](store::Store& store) {
                  return shell::arrearsStatistics(store, {2026, 11, 7});
                });
}

// The last payments of the ledger are made an operator's takings again before each run.
Measure submitting(Office& office) {
  const auto takeBack = [&office] {
    office.bare.run("update jfjl set sftj = '*' where sftj <> '*'");
    office.bare.run(
        "update jfjl set sftj = '', skr = '李强' where row_no in (select row_no from jfjl order by row_no desc limit " +
        std::to_string(submitted) + ")");
  };
  office.test.session.SessionUser = "李强";
  office.test.session.Rights.fill(true);
  return {"submission of " + std::to_string(submitted) + " payments, on the disk", 1.1, runs,
          [&office, takeBack] {
            takeBack();
            return timed([&] { office.bare.run("update jfjl set sftj = '*' where skr = '李强' and sftj <> '*'"); });
          },
          [&office, takeBack] {
            takeBack();
            collection::Formzctsf9 screen(office.desk);
            const std::string sum = office.sumOf("select sum(je) from jfjl where skr = '李强' and sftj <> '*'");
            office.test.person
                .answer(true, kit::Box::Ask, "您确认是要提交前台的收费记录到后台数据库中吗？    ", "操作提示")
                .answer(true, kit::Box::Ask,
                        "您在前台共有： " + std::to_string(submitted) + " 条收费记录；累计收费总额为：" + sum +
                            " 元！ \n提交前，您应该先打印出收费汇总报表！您确认继续吗？  "
                            "\n选择“是”提交记录；否则点“否”撤销此操作！ ",
                        "操作提示")
                .expect(kit::Box::Information, "记录提交完毕！     ", "信息提示");
            return timed([&] { screen.submit.press(); });
          }};
}

namespace {

// The term and item that a hand-written statement and the comparison ask for.
const char* const term = "2026学年下学期";
const char* const item = "学费";
const base::DateTime now{{2026, 9, 7}, 8, 30, 5};

Measure comparing(Office& office, std::string what, std::vector<std::string> statements,
                  std::function<long long()> ours) {
  return {std::move(what), 1.8, runs,
          [&office, statements] {
            return timed([&] {
              office.bare.run("begin immediate");
              for (const std::string& sql : statements) office.bare.run(sql);
              office.bare.run("commit");
            });
          },
          [ours] {
            return timed([&] {
              if (ours() == 0) throw std::runtime_error("nobody found");
            });
          }};
}

std::string paymentsOfTerm() { return std::string("xq = '") + term + "' and sfxm = '" + item + "'"; }

}  // namespace

Measure unpaidList(Office& office) {
  return comparing(
      office, "who of " + std::to_string(office.rows("xs")) + " students has not paid",
      {"delete from qfjl_wjf",
       std::string(
           "insert into qfjl_wjf (xh, xm, bjmc, lxdh, sjhm, xqrq, sfxm, bsh) select xh, xm, bjmc, lxdh, sjhm, '") +
           term + "', '" + item + "', '2026-9-7 8:30:05' from xs where xh not in (select xh from jfjl where " +
           paymentsOfTerm() + ")"},
      [&office] {
        return arrears::listUnpaid(office.store, {"", term, item, {}, {}}, now, {}).value();
      });
}

Measure comparison(Office& office) {
  return comparing(
      office, "due against paid of " + std::to_string(office.rows("xs")) + " students",
      {"delete from qfjl_je",
       std::string(
           "insert into qfjl_je (xh, xm, bjmc, lxdh, sjhm, xqrq, sfxm, bsh, yjje, sjje, ce) select xs.xh, xm, bjmc, "
           "lxdh, sjhm, '") +
           term + "', '" + item +
           "', '2026-9-7 8:30:05', 50000000, coalesce(paid, 0), 50000000 - coalesce(paid, 0) "
           "from xs left join (select xh, sum(je) as paid from jfjl where " +
           paymentsOfTerm() + " group by xh) as sums on sums.xh = xs.xh",
       "delete from qfjl_je where sjje >= yjje"},
      [&office] {
        return arrears::listByPaid(office.store, {"", term, item, {}, {}}, base::Money::yuan(5000),
                                   arrears::PaidAs::Less, now, {})
            .value();
      });
}

}  // namespace bench
