// The ten lines of the fee window and what they offer to pay: the current standards of a student's class or enrolment
// form, or the student's open arrears.
#pragma once

#include <array>
#include <optional>

#include "arrears/arrears_ledger.h"
#include "kit/screen.h"

namespace collection {

struct FeeLine {
  FeeLine(kit::Screen& screen, int index);

  kit::Field place;  // 1 to 10; in arrears mode the planned date bjrq
  kit::Field sfxm, due;
  kit::Check tick;  // shown only when there is a due amount
  kit::Field paid;
  arrears::OpenRow owed;  // the arrears row that the line stands for

  bool hasItem() const { return !sfxm.blank(); }
  base::Money dueAmount() const { return base::Money::leading(due.text()); }
  base::Money paidAmount() const { return base::Money::leading(paid.text()); }
  void offer(base::Money amount);  // shows the due amount and the tick box
  void clear();
};

using FeeLines = std::array<FeeLine, 10>;

// Each loader starts from cleared lines and gives back the total due, or nothing when there was no row to show.

// Whose standards count: those of the class or, as the setting has it, those of the enrolment form.
struct StandardBasis {
  bool byClass;
  std::string name;
};

// Only the items that have a standard.
std::optional<base::Money> loadStandards(store::Store& store, const StandardBasis& basis, FeeLines& lines);
// Every fee item, with its amount where there is a standard; without one an amount can still be typed.
std::optional<base::Money> loadAllItems(store::Store& store, const StandardBasis& basis, FeeLines& lines);
// The student's open arrears; with tickDue those whose reminder has begun are ticked at once.
std::optional<base::Money> loadArrears(store::Store& store, const std::string& xh, base::Date today, bool tickDue,
                                       FeeLines& lines);

// In one line what a student has paid for a term, item by item, and how much they owe in all.
std::string paidAndOwed(store::Store& store, const std::string& xh, const std::string& xq);

}  // namespace collection
