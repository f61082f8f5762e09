// One row shown, checked and written: to be added, changed or deleted. A screen says which fields stand for which
// columns, what must hold, and its words; what was not changed by the person is not written.
#pragma once

#include "kit/editing.h"
#include "kit/screen.h"
#include "kit/validation.h"

namespace kit {

class RecordEdit : public Screen {
 public:
  RecordEdit(Desk& desk, std::string name, std::string title, const char* table, const Editing& editing);
  void load() override;
  Layout layout() override;  // the fields as a form above the two buttons

  Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "撤销", "x"};

 protected:
  struct Bound {
    Field& field;
    int width;  // in Chinese characters
    Format format = field.entry == Entry::Date ? Format::Date : Format::Text;
    std::string_view column{};  // empty: the field's name
  };
  struct Question {
    std::string text, title = "修改提示";
    Box box = Box::Ask;
  };
  struct Words {                               // an empty text is not told
    std::vector<Question> modify{}, remove{};  // asked one after the other
    std::string added{}, modified{}, removed{}, modifiedTitle = "信息提示";
    bool staysForTheNext = false;  // after a row was added: many are entered one after the other
  };

  virtual std::vector<Bound> bound();               // by default all fields that can be typed into
  virtual std::vector<Rule> rules() { return {}; }  // walked before anything is done, whatever the screen is open for
  virtual Words words() { return {}; }
  virtual void propose() {}                 // fills the fields of a row to be added
  virtual void shown(store::RecordSet&) {}  // the row's fields are filled; notes what else it holds
  // Looked at inside the unit before it writes: what fails is told when the unit is over, and nothing was saved.
  virtual std::vector<Rule> guards() { return {}; }
  // Inside the unit that writes, before the row itself: what goes with it in other tables, what no field holds.
  virtual void adding(store::RecordSet&) {}
  virtual void modifying(store::RecordSet&) {}
  virtual void removing() {}  // after the row: `former` tells what it held
  // By default: asks, does it in one unit, closes, tells.
  virtual void add() { save(); }
  virtual void modify();
  virtual void remove();
  bool agreed(const std::vector<Question>& questions);
  void save();  // what the screen is open for, without asking

  // For a name that is entered here; a name of old that holds an apostrophe can still be deleted.
  Rule noQuote(Field& field);

  store::RecordSet row();                        // as it stands now; raises Fault::RowGone
  bool changed(const Field& field) const;        // by the person, since the row was shown
  std::string former(const Field& field) const;  // as the row held it when it was shown
  // Sets what the person changed. Raises a StoreError, in words, when another desk has changed the same field
  // meanwhile.
  void write(store::RecordSet& row);
  // Closes, and tells when there is something to tell.
  void done(const std::string& words, const std::string& title = "信息提示");
  std::string now() { return desk.clock.now().plain(); }

  const Mode EditMode;
  const Panel ConsolePanel;

 private:
  void show(store::RecordSet& row);
  void act();
  void put(store::RecordSet& row);
  void enterTheNext();
  void mustStandAsShown(store::RecordSet& row, const Bound& one);
  const char* const table_;
  const std::int64_t mark_;
  std::vector<std::pair<const Field*, std::string>> former_;
};

}  // namespace kit
