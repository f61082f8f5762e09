// The session: who works where, and the settings of the desk. What one screen hands to another is no part of it: that
// goes to the constructor of the receiver, and comes back as its answer.
#pragma once

#include <array>
#include <string>

namespace kit {

struct Session {
  // Who works where; written by the login.
  std::string SessionUser, SessionLevel, ComputerName, ComputerMark, SessionStart, SchoolName;
  std::string MainConnection, ConfigConnection;
  std::array<bool, 100> Rights{};
  int ScreenWidth = 0;

  // The front-desk settings, copied from the configuration record.
  bool print_receipt = false;            // dysz
  bool open_fee_window = false;          // sfctsz
  bool only_items = false;               // sfxmmcsz: only the items of the student's standard
  bool due_rows_ticked = false;          // qfmr
  bool auto_load_lists = false;          // jfjljz
  bool arrears_in_remark = false;        // dybzok
  int receipt_style = 1;                 // fpys
  std::string custom_form;               // todamc1
  bool switch_layout = false;            // zdqh
  std::string arrears_item;              // qfjz
  int reminder_days = 0;                 // qfts
  bool shortfall_opens_arrears = false;  // qfcejz
  bool standard_basis_class = false;     // bjsf1

  bool folder_wanted = false;     // the program starts anew with another folder of data
  bool first_user_added = false;  // the first-run screen did its work; the program starts anew for the login

  // Of the receipt that was printed last: a reprint shows them again.
  std::string print_jffs, print_jfrq;
};

}  // namespace kit
