// The console: the one main screen. It opens after the login and stands until the program ends; every other screen is
// reached from here.
#pragma once

#include "shell/console_front.h"
#include "shell/console_menu.h"
#include "shell/console_overview.h"
#include "students/student_edit.h"

namespace shell {

class Formzct : public kit::Screen, public ConsoleMenu {  // 收费前台
 public:
  explicit Formzct(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;
  bool escaped() override;   // shuts what is in front, else goes to the number
  bool mayClose() override;  // asks, closes the session's row in the log, offers the backup

  CardFrame card{*this};
  PaymentsFrame payments{*this, desk};
  ArrearsFrame arrears{*this, desk};
  SharingFrame sharing{*this, desk};
  ClassPanel classes{*this, desk};
  kit::Action class_strip{*this, "class_strip", "专业及班级", "list-tree"};  // slides the panel of classes in and out

  kit::Panel ConsolePanel = kit::Panel::None;  // which overview is in front, or is about to be
  std::string current_xh;                      // the student in hand

  Overview students_overview{*this, studentsPlan};
  Overview payments_overview{*this, paymentsPlan};
  Overview arrears_overview{*this, arrearsPlan};

  kit::Field ready{*this, "ready", "", kit::Entry::Shown}, user{*this, "user", "", kit::Entry::Shown},
      third{*this, "third", "", kit::Entry::Shown};

  kit::Timer timer1{*this, "timer1", std::chrono::milliseconds(200)};  // opens an overview, once its notice is painted
  kit::Timer timer2{*this, "timer2", std::chrono::milliseconds(30000)};  // refreshes the sharing status
  kit::Timer timer3{*this, "timer3",
                    std::chrono::milliseconds(100)};  // adds up the panel in front, once its notice is painted
  kit::Timer timer4{*this, "timer4", std::chrono::milliseconds(100)};  // refills an overview after its query

 private:
  // console.cpp: wiring, load, exit.
  void showSchool();
  void showToday();
  void wireMenu();
  void wireToolbar();
  void wireFront();
  void loadAllSettings();
  void leaveProgram();
  void closeLogRow();
  void restoreDisplay();
  void offerBackup();

  // console_student.cpp: the student in hand.
  void findByNumber();
  void findByName();
  void found(const std::string& xh, const std::string& notFoundText);
  void titleFrames();
  void clearCard();
  void showStudent();
  void redrawLists();
  void refreshCard();
  void openFeeWindow();
  students::Formzctxs::Collect collectFrom();
  std::optional<store::RecordSet> selectedRow(const kit::List& list, const char* table);
  void openFeeWindowFor(kit::List& list, const char* table);
  void summarise(kit::List& list, const char* table);
  void pickFromClass();
  void enablePaymentEntries();
  void enableArrearsEntries(bool listed);
  void showPayments();
  void showArrears();
  void showDueArrears();
  void leaveDueArrears();
  void waiveOnCard(bool all);
  void reprint();
  void deletePayments(bool wholeReceipt);

  // console_panels.cpp: the overviews.
  void wireOverviews();
  Overview* inFront();
  void openOverview(Overview& overview);
  void closeOverviews();
  Filled fill(Overview& overview);
  void openPanel();
  void refillLater(Overview& overview, std::optional<kit::Filter> answer);
  void refillAfterQuery();
  void queryArrears();
  void enableWaivers();
  void fillAgain(Overview& overview);
  store::Sql keyedHere() const;
  void editPayment(kit::Mode mode);
  void editStudent(kit::Mode mode);
  void addArrears();
  void editArrears(kit::Mode mode);
  void waiveInOverview(bool all);
  void stampKeyedRows(const char* table);

  // console_statistics.cpp: the statistics bars of the overviews, and the rows behind a line of them.
  void wireStatistics();
  void zoom(Overview& overview);
  void closeStatistics(Overview& overview);
  void showStudentsOfClass();
  void showUnsubmittedOf(const store::Sql& where, const std::string& what);
  Filled showArrears(const store::Sql& where);
  void showArrearsOfClass();
  void showMonthOfClass();

  // console_clearing.cpp: what 数据清空 empties.
  void clearPanel(kit::Panel panel);

  Overview* asked_ = nullptr;  // its query was answered; timer4 refills it
};

}  // namespace shell
