// The income statement: a worker that computes behind a notice, and the screen that shows what it computed.
#pragma once

#include "kit/editing.h"
#include "kit/screen.h"
#include "reports/income.h"

namespace reports {

// What the worker is opened for.
constexpr kit::Mode openStatement{1}, refreshStatement{2}, printStatement{3};

class Formkh1 : public kit::Screen {  // 经营情况统计的计算窗口
 public:
  // Without a period: this month's.
  explicit Formkh1(kit::Desk& desk, kit::Mode order = openStatement, Period period = {});
  void load() override { timer.start(); }
  kit::Layout layout() override;
  bool mayClose() override { return false; }  // it leaves by itself

  kit::Field notice{*this, "notice", "", kit::Entry::Shown};
  kit::Timer timer{*this, "timer", std::chrono::milliseconds(200)};
  std::optional<Income> answer;  // nothing when a fault ended the work

 private:
  void work();
  void compute();
  void print();
  const kit::Mode EditMode;
  const Period period_;
};

class Formkh : public kit::Screen {  // 学校经营情况统计分析
 public:
  explicit Formkh(kit::Desk& desk, Income income = {});
  void load() override { show(); }
  kit::Layout layout() override;

  kit::Field period{*this, "period", "", kit::Entry::Shown};
  kit::Action previous{*this, "previous", "<<<="}, next{*this, "next", "=>>>"};
  kit::List list;
  kit::Field month_total{*this, "month_total", "本期合计", kit::Entry::Shown},
      year_total{*this, "year_total", "累计合计", kit::Entry::Shown};
  kit::Action print{*this, "print", "打印", "printer"}, back{*this, "back", "返回", "arrow-left"};

 private:
  void show();
  void toPrevious();
  void toNext();
  void refresh(Period period);
  Income income_;
};

}  // namespace reports
