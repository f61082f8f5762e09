// A list of records with what is done to its rows: counted, filtered, added, changed and deleted through an edit
// screen, printed, exported, emptied. Told as data; a screen holds one, or one a tab.
#pragma once

#include <deque>
#include <optional>

#include "kit/editing.h"
#include "kit/filter.h"
#include "kit/screen.h"

namespace kit {

struct RowButton {  // opens the edit screen
  const char *name, *caption, *icon;
  Mode mode;
  const char* none = "";     // told when the list has no row to work on
  std::vector<int> anyOf{};  // rights; empty: everybody's
  Box noneBox = Box::Information;
};

struct ListButton {  // does something with the rows of the filter: prints them, exports them
  const char *name, *caption, *icon;
  std::vector<int> anyOf;
  std::function<void(Desk&, const Filter&)> act;
};

struct Emptying {
  const char *first, *second;  // the two questions; the second ends with the choice
  std::vector<std::string_view> tables;
  const char *none, *done;
  std::vector<int> anyOf{};
};

struct RecordDeskPlan {
  const char* table;   // whose rows they are
  const char* name;    // of the list; its buttons are told apart by it where a screen has several desks
  store::Sql order{};  // of the unfiltered list
  std::vector<ListColumn> columns;
  std::vector<RowButton> buttons;
  std::vector<int> queryBy{};  // who may filter the list
  std::vector<ListButton> others{};
  std::optional<Emptying> emptying{};
  const char *counted = nullptr, *countedByFilter = nullptr;  // the words before the count; null: it is not shown
};

class RecordDesk {
 public:
  // prefix: before the names of the buttons.
  RecordDesk(Screen& screen, Desk& desk, const RecordDeskPlan& plan, const std::string& prefix = "");

  // The edit screen of all row buttons; it takes what it is opened for.
  template <class Editor> void editedIn() {
    openEditor_ = [this](const Editing& editing) { desk_.navigator.open<Editor>(desk_, editing); };
  }
  void editedBy(std::function<void(const Editing&)> open) { openEditor_ = std::move(open); }
  void onEdited(Handler handler) { edited_ = std::move(handler); }  // instead of reading this list alone again
  // The screen that asks what the list is to hold; its answer is a Filter, or nothing.
  template <class Query> void queriedIn() {
    query.emplace(screen_, prefix_ + "query", "查询", "search");
    query->onPress([this] {
      auto answer = desk_.navigator.open<Query>(desk_);
      if (!answer) return;
      asked_ = true;
      show(std::move(*answer));
    });
  }

  void open();               // by the user's rights, unfiltered
  void show(Filter filter);  // nothing is selected then
  void reload();             // goes back to the row that was selected
  const Filter& filter() const { return filter_; }
  store::Sql statement() const;  // of the rows in sight
  void setVisible(bool on);      // the list with its buttons
  Action& button(std::string_view name);
  Nodes actions();  // in the order of the plan
  Node shown();     // the count above the list

  const RecordDeskPlan& plan;
  Grid list;
  std::optional<Field> count;
  std::deque<Action> buttons, others;  // in the order of the plan
  std::optional<Action> query, clearAll;

 private:
  void showCount();
  void edit(const RowButton& button);
  void empty();
  Screen& screen_;
  Desk& desk_;
  const std::string prefix_;
  Filter filter_;
  bool asked_ = false;  // by a query, if only for all rows
  std::function<void(const Editing&)> openEditor_;
  Handler edited_;
};

}  // namespace kit
