// A small school with a row in every table that screens read, a person who says yes to everything, and a navigator that
// fills each screen, confirms it and leaves it.
#pragma once

#include <gtest/gtest.h>

#include <map>

#include "app/screens.h"
#include "support/failing_engine.h"
#include "support/test_desk.h"

namespace app {
inline void PrintTo(const Entry& entry, std::ostream* out) { *out << entry.name; }
}  // namespace app

namespace sweep {

struct WillingPerson : kit::Person {
  explicit WillingPerson(store::Store& all) : store(all) {}
  store::Store& store;
  std::vector<std::string> told, faults;  // what a fault is told as, apart
  void tell(kit::Box, const std::string& text, const std::string&) override { hear(text); }
  bool ask(kit::Box, const std::string& text, const std::string&) override { return hear(text), true; }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }

 private:
  void hear(const std::string& text);
};

struct PassingNavigator : kit::Navigator {
  int opened = 0;
  std::vector<std::unique_ptr<kit::Screen>> kept;
  std::vector<kit::Screen*> standing() override;

 protected:
  void run(kit::Screen& screen) override;
  void keep(std::unique_ptr<kit::Screen> screen) override;

 private:
  int depth_ = 0;
};

struct World {
  World();
  // As it is before the person does something: what earlier screens left is gone, but for what they wrote.
  void begin();
  static app::Opening opening(kit::Mode mode) { return {{mode, 1}, "20260001", "10000001"}; }

  support::TestDesk parts;
  long long savedAtFirst = 0;
  support::Failures store{parts.store};
  support::PlatformFaults& computer = parts.desktop.faults;
  WillingPerson person{parts.store};
  PassingNavigator navigator;
  kit::Desk desk{parts.session, parts.store,  person,        navigator,     parts.clock,
                 parts.printer, parts.sheets, parts.desktop, parts.progress};
};

using RowId = std::pair<std::string, std::int64_t>;  // table and mark
using Books = std::map<RowId, std::string>;
Books booksOf(store::Store& store);  // all rows of the main database
void copyRow(store::Store& store, const std::string& table, std::int64_t mark);

// One thing that a person, or a timer, can do to a screen. Screens are made anew for each try: a deed knows its member
// by its place.
struct Deed {
  std::string name;
  std::function<bool(kit::Screen&)> possible;
  std::function<void(kit::Screen&)> play;
};
std::vector<Deed> deedsOf(const kit::Screen& screen);
// Selects the first row of each list and fills what is empty, so that actions go beyond their first check.
void prepare(kit::Screen& screen);

}  // namespace sweep
