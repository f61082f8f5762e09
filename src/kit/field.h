// A field: one text that is shown, typed, or picked from a list.
#pragma once

#include <optional>

#include "base/date.h"
#include "base/money.h"
#include "kit/member.h"
#include "store/sql.h"

namespace kit {

// How a field takes its text. Pick and Choose drop a list down; Pick also takes typed text, Choose does not.
enum class Entry { Text, Password, Memo, Pick, Choose, Date, Shown };

class Field : public Member {
 public:
  Field(Screen& screen, std::string name, std::string label = "", Entry entry = Entry::Text);

  const Entry entry;
  const std::string& label() const { return label_; }
  void setLabel(std::string label);

  const std::string& text() const { return text_; }
  std::string trimmed() const;
  bool blank() const;
  base::Money money() const;               // what a number at its beginning says; 0 without one
  std::optional<base::Date> date() const;  // nothing when the text is no day
  void set(std::string text);              // raises change as typing does
  void clear() { set(""); }

  const std::vector<std::string>& choices() const { return choices_; }
  void setChoices(std::vector<std::string> choices);
  // Drops down one column of what the statement finds at that moment, without blank entries.
  void offers(store::Sql sql, std::string column);
  void offers(std::function<store::Sql()> sql, std::string column);

  std::optional<Colour> colour() const { return colour_; }  // of the text
  void setColour(std::optional<Colour> colour);
  bool recedes() const { return recedes_; }  // it can be typed into, but nothing is expected there
  void setRecedes(bool on);
  int calendarFrom = 0;       // where the calendar of an empty date opens, in days from today
  bool rightAligned = false;  // amounts
  bool names = false;         // of people: a list that narrows shows them in the order in which they are read
  bool prominent = false;     // shown large: a total, what the whole window is about

  void onChange(Handler handler) { change_.push_back(std::move(handler)); }
  void onEnter(Handler handler) { enter_.push_back(std::move(handler)); }
  void onPick(Handler handler) { pick_.push_back(std::move(handler)); }
  void onDrop(Handler handler) { drop_.push_back(std::move(handler)); }  // before the list shows: fills the choices
  void onClick(Handler handler) { click_.push_back(std::move(handler)); }
  void onDoubleClick(Handler handler) { doubleClick_.push_back(std::move(handler)); }
  bool handlesDoubleClick() const { return !doubleClick_.empty(); }

  // The person's side.
  void type(const std::string& text);  // replaces what stands there; focuses first
  void enter();                        // without a handler of its own, moves on to the next field or confirms
  bool handlesEnter() const { return !enter_.empty(); }
  void drop();
  void take(const std::string& choice);  // of the list or the calendar that has dropped
  void pick(const std::string& choice);  // drops it, then takes the entry or the day
  void click();
  void doubleClick();

 private:
  void replace(std::string text);
  std::string label_, text_;
  std::vector<std::string> choices_;
  std::optional<Colour> colour_;
  bool recedes_ = false;
  std::vector<Handler> change_, enter_, pick_, drop_, click_, doubleClick_;
};

}  // namespace kit
