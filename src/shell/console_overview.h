// The three overviews that cover the console's work area, each with one big list: told as data, built once.
#pragma once

#include <deque>

#include "kit/filter.h"
#include "kit/notice.h"
#include "kit/screen.h"
#include "reports/export.h"
#include "shell/statistics.h"

namespace shell {

struct OverviewButton {
  const char* name;
  const char* caption;
  const char* icon;
  std::vector<int> anyOf;  // rights; empty: always enabled
  bool changesRows = false;
};

// The bar that the zoom picture opens below the list.
struct StatisticsPlan {
  const char* notice;  // while it adds up
  Statistics (*compute)(store::Store& store, base::Date today);
  const char* firstTip;
  std::vector<kit::ListColumn> first;
  const char* secondTip;
  std::vector<kit::ListColumn> second;
};

struct Figure {
  const char* name;
  const char* label;
};

// What makes one overview differ from another.
struct OverviewPlan {
  kit::Panel panel;
  const char* name;
  const char* title;
  reports::List holds;
  const char* notice;  // while it loads
  std::vector<kit::ListColumn> columns;
  std::vector<OverviewButton> buttons;
  StatisticsPlan statistics;
  std::vector<Figure> figures;  // sums that stand beside the list's bar
};

class StatisticsBar {
 public:
  StatisticsBar(kit::Screen& screen, const std::string& overview, const StatisticsPlan& plan);
  void fill(kit::Desk& desk);
  void close();  // its lists are filled anew each time it opens

  const StatisticsPlan& plan;
  kit::Frame frame;
  kit::List first, second;
  kit::Field totals;
};

class Overview {
 public:
  Overview(kit::Screen& screen, const OverviewPlan& plan);
  void enableByRights(const kit::Desk& desk);  // and by what the list holds: a computed list has no rows to change
  kit::Action& button(std::string_view caption);
  kit::Nodes layout();
  void clear();

  const OverviewPlan& plan;
  kit::Filter filter;   // of the rows that are listed
  reports::List holds;  // the arrears' overview also takes the lists that a query computes
  kit::Frame frame;
  kit::List list;
  kit::Field bar;
  std::deque<kit::Field> figures;
  StatisticsBar statistics;
  kit::Action zoom;
  std::deque<kit::Action> buttons;
};

extern const OverviewPlan studentsPlan, paymentsPlan, arrearsPlan;

// What a fill saw on its way.
struct Filled {
  long long count = 0, men = 0;
  base::Money due, paid, waived;
};

// Fills the overview's list from "select * from <table> " + where, and its bar.
Filled fillStudents(Overview& overview, kit::Desk& desk, kit::Notice& notice);
Filled fillPayments(Overview& overview, kit::Desk& desk, kit::Notice& notice);  // paid: the sum
// By what the overview holds: arrears, not paid, less paid.
Filled fillArrears(Overview& overview, kit::Desk& desk, kit::Notice& notice);

}  // namespace shell
