#include "reports/income_statement.h"

#include <random>

#include "base/text.h"
#include "reports/income.h"
#include "support/test_desk.h"

namespace reports {
namespace {

using kit::Box;
using store::RecordSet;
using store::Sql;
using store::Value;
using support::opened;
using support::TestDesk;

base::Money sum(TestDesk& test, const Sql& sql) {
  base::Money total;
  RecordSet rows(test.store, sql);
  store::forEach(rows, [&](RecordSet& row) { total += row.get("je").money(); });
  return total;
}

// The statement as the office states it: two questions for each item.
std::string asStated(TestDesk& test, Period period) {
  std::string lines;
  const std::string y = std::to_string(period.statement_year), m = std::to_string(period.statement_month);
  RecordSet items(test.store, "select sfxm from jfjl group by sfxm");
  store::forEach(items, [&](RecordSet& row) {
    const std::string item = row.get("sfxm").trimmed();
    const Sql own = Sql("select * from jfjl where sfxm='") + item;
    lines += item + "|" + sum(test, own + "' and month(jfrq)='" + m + " '").plain() + "|" +
             sum(test, own + "' and year(jfrq)='" + y + "' and month(jfrq)<='" + m + "'").plain() + "\n";
  });
  return lines;
}

std::string computed(TestDesk& test, Period period) {
  std::string lines, told;
  for (const auto& line :
       computeIncome(test.store, period, [&](const std::string& item) { told += item + ","; }).lines) {
    lines += line.item + "|" + line.month.plain() + "|" + line.year.plain() + "\n";
    EXPECT_TRUE(told.starts_with(line.item + ",")) << told;
    told.erase(0, line.item.size() + 1);
  }
  return lines;
}

TEST(Income, OneWalkGivesWhatTheStatementsGive) {
  const std::vector<Value> items{"学费", "住宿费", "书费abc", "书费ABC", " 学费", "学费 ", "", "  ", {}};
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 random(seed);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    TestDesk test;
    for (int row = upTo(120); row > 0; --row) {
      Value day = base::Date{2024 + upTo(2), 1 + upTo(11), 1 + upTo(27)};
      if (upTo(9) == 0) day = upTo(1) ? Value("") : Value();
      Value amount;
      if (upTo(9) != 0) amount = base::Money::ofUnits(upTo(90'000'000) - 30'000'000);
      test.add("jfjl", {{"sfxm", items[static_cast<std::size_t>(upTo(8))]}, {"jfrq", day}, {"je", amount}});
    }
    for (const Period period : {Period{2026, 9}, Period{2025, 12}, Period{2024, 1}, Period{2023, 6}})
      EXPECT_EQ(computed(test, period), asStated(test, period))
          << seed << ", " << period.statement_year << "-" << period.statement_month;
  }
}

TEST(Income, CellsArePaddedByThePlainLengthAndLongOnesAreLeftOut) {
  const struct {
    base::Money amount;
    const char* shown;
  } cells[] = {{base::Money::yuan(5), "            5.00"},
               {base::Money::fen(-1250), "        -12.50"},
               {base::Money::yuan(123456789012), " 123456789012.00"},
               {base::Money::yuan(-123456789012), ""}};
  for (const auto& one : cells) EXPECT_EQ(incomeCell(one.amount), one.shown);
}

struct Office : TestDesk {
  Office() {
    pay("学费", {2025, 9, 3}, 100);
    pay("学费", {2026, 9, 1}, 300);
    pay("学费", {2026, 2, 1}, 40);
    pay("学费", {2026, 9, 2}, -50);
    pay("住宿费", {2025, 12, 31}, 7);
  }
  void pay(const char* item, base::Date day, int yuan) {
    add("jfjl", {{"sfxm", item}, {"jfrq", day}, {"je", base::Money::yuan(yuan)}});
  }
  void expectWorker() {
    navigator.expect<Formkh1>([](Formkh1& worker) {
      EXPECT_EQ(worker.notice.text(), "正在执行您的设置 ...");
      worker.timer.tick();
      EXPECT_TRUE(worker.closed());
    });
  }
  // The console's way in; plays the statement behind the worker.
  void openStatementAnd(std::function<void(Formkh&)> play) {
    navigator.expect<Formkh>(std::move(play));
    opened<Formkh1>(*this)->timer.tick();
  }
  static std::string shown(const Formkh& s) {
    std::string text = s.period.text();
    for (long long row = 0; row < s.list.count(); ++row)
      for (std::size_t column = 0; column < 4; ++column) text += "|" + std::string(s.list.cell(row, column));
    return text + "|" + s.month_total.text() + "|" + s.year_total.text();
  }
  void asked(bool yes) {
    person.answer(
        yes, Box::AskWarning,
        "要打印经营损益表数据吗？请确认打印机连接正常、打印纸准备就绪！ \n点“是”继续；否则，点“否”撤销此操作！ ", "");
  }
};

TEST(IncomeStatement, WalksBackAcrossJanuaryButNotBeyondToday) {
  Office office;
  office.openStatementAnd([&](Formkh& s) {
    EXPECT_EQ(Office::shown(s),
              " 2026年 9月份数据"
              "|  住宿费| 1|            0.00|            0.00"
              "|  学费| 2|          350.00|          290.00|350.00|290.00");
    s.next.press();  // no worker comes
    for (int month = 0; month < 9; ++month) {
      office.expectWorker();
      s.previous.press();
    }
    EXPECT_EQ(Office::shown(s),
              " 2025年 12月份数据"
              "|  住宿费| 1|            7.00|            7.00"
              "|  学费| 2|            0.00|          100.00|7.00|107.00");
    office.expectWorker();
    s.next.press();
    EXPECT_EQ(s.period.text(), " 2026年 1月份数据");
  });
  EXPECT_EQ(office.progress.texts.back(), "正在统计学费信息 ...");
  EXPECT_FALSE(office.progress.shown);
}

TEST(IncomeStatement, PrintsWhatItShowsAndKeepsThePrintTableOnNo) {
  Office office;
  office.add("dy_kh", {{"sfxm", "old"}});
  office.openStatementAnd([&](Formkh& s) {
    for (const bool yes : {false, true}) {
      office.expectWorker();
      office.asked(yes);
      s.print.press();
      EXPECT_EQ(office.dump("dy_kh", "bh|sfxm|je|hjje|bsh"),
                "1|住宿费|0|0|2026-9-7 8:30:05\n2|学费|350|290|2026-9-7 8:30:05\n");
      ASSERT_EQ(office.printer.shown.size(), yes ? 1u : 0u);
    }
  });
  const auto namesMonth = [](const platform::Mark& mark) {
    const auto* text = std::get_if<platform::Text>(&mark);
    return text && text->text == " 2026年 9月份";
  };
  EXPECT_EQ(std::ranges::count_if(office.printer.shown.at(0).pages.at(0).marks, namesMonth), 1);
}

TEST(IncomeStatement, WithoutPaymentsShowsThePeriodAndPrintsNothing) {
  Office office;
  RecordSet(office.store, "select * from jfjl").removeAll();
  office.openStatementAnd([&](Formkh& s) {
    EXPECT_EQ(Office::shown(s), " 2026年 9月份数据|0.00|0.00");
    office.expectWorker();
    office.asked(true);
    s.print.press();
    EXPECT_TRUE(office.printer.shown.empty());
  });
}

}  // namespace
}  // namespace reports
