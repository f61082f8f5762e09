// The three overviews that cover the console's work area, each with one big list: told as data, built once.
#pragma once

#include <deque>

#include "kit/screen.h"

namespace shell {

struct OverviewButton {
  const char* name;
  const char* caption;
  const char* icon;
  std::vector<int> anyOf;  // rights; empty: always enabled
};

// What makes one overview differ from another.
struct OverviewPlan {
  kit::Panel panel;
  const char* name;
  const char* title;
  const char* notice;  // while it loads
  std::vector<kit::ListColumn> columns;
  std::vector<OverviewButton> buttons;
};

class Overview {
 public:
  Overview(kit::Screen& screen, const OverviewPlan& plan);
  void settle(const kit::Desk& desk);  // the buttons by the user's rights
  kit::Action& button(std::string_view caption);
  kit::Nodes layout();
  void clear();

  const OverviewPlan& plan;
  kit::Frame frame;
  kit::List list;
  kit::Field bar;
  std::deque<kit::Action> buttons;
};

extern const OverviewPlan studentsPlan, paymentsPlan, arrearsPlan;

// Fills the overview's list from "select * from <table> " + where, and its bar.
void fillStudents(Overview& overview, kit::Desk& desk);
void fillPayments(Overview& overview, kit::Desk& desk);
void fillArrears(Overview& overview, kit::Desk& desk);

}  // namespace shell
