// The console's work area: the student in hand with payments and arrears, who else works on the databases, and the
// panel of classes that slides in at the left.
#pragma once

#include <deque>
#include <map>

#include "kit/screen.h"
#include "students/student_card.h"

namespace shell {

// 学籍资料：the student card. The two search fields belong to it.
class CardFrame {
 public:
  explicit CardFrame(kit::Screen& screen);
  void show(const students::StudentCard& card);
  void clear();
  bool holdsStudent() const { return !xm.blank(); }
  kit::Nodes layout();

  kit::Frame frame;
  kit::Field xh, xm;
  kit::Picture photo;
  std::deque<kit::Field> details;  // what the card shows, in the order of the card's table
};

// What the list of the card's payments holds.
enum class PaymentList { All = 3, New = 4, None = 5 };

// 交费记录：the payments of the student in hand.
class PaymentsFrame {
 public:
  PaymentsFrame(kit::Screen& screen, kit::Desk& desk);
  void showAll(const std::string& xh, const std::string& name);  // all payments, with the dates they span
  void showNew(const std::string& xh);                           // those not submitted yet
  void clear();
  void guide(bool newSchool);  // what is to be done next, in a list that has nothing to show

  kit::Frame frame;
  kit::List list;
  kit::Field bar;
  PaymentList payment_list_mode = PaymentList::None;

 private:
  std::string next_;
  kit::Desk& desk_;
};

// 欠费记录：what the student in hand still owes, or what the whole school should have paid by today.
class ArrearsFrame {
 public:
  ArrearsFrame(kit::Screen& screen, kit::Desk& desk);
  void show(const std::string& xh);
  void showDue();  // and whatever comes due within the reminder's lead
  bool holdsDue() const { return holdsDue_; }
  void clear();

  kit::Frame frame;
  kit::List list;
  kit::Field bar;
  kit::Action due, back;

 private:
  void addRow(store::RecordSet& row, base::Money balance);
  bool holdsDue_ = false;
  kit::Desk& desk_;
};

// 系统共享状态：the open sessions on all computers. Each one says once a minute that it lives.
class SharingFrame {
 public:
  SharingFrame(kit::Screen& screen, kit::Desk& desk);
  void refresh();
  void sayAlive();
  store::RecordSet ownRow() const;  // in the log; it may be gone

  kit::Frame frame;
  kit::List list;

 private:
  // The clocks of two computers differ: what counts is how long ago, by this one's, the row was seen to change.
  struct Seen {
    std::string moment;  // as the row says
    base::DateTime since;
    bool changed = false;
  };
  bool lives(store::RecordSet& row);
  std::map<std::int64_t, Seen> seen_;
  kit::Desk& desk_;
};

// Majors and classes as a tree, the students of the class chosen, and the setting that opens the fee window with them.
class ClassPanel {
 public:
  ClassPanel(kit::Screen& screen, kit::Desk& desk);
  void fillTree();

  kit::Frame frame;
  kit::Tree tree;
  kit::List students;
  kit::Check opensFeeWindow;

 private:
  void listClass();
  kit::Desk& desk_;
};

}  // namespace shell
