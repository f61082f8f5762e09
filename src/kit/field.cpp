#include "kit/field.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/text.h"
#include "kit/rows.h"
#include "kit/screen.h"

namespace kit {

Field::Field(Screen& screen, std::string own, std::string caption, Entry way)
    : Member(screen, MemberKind::Field, std::move(own)), entry(way), label_(std::move(caption)) {}

void Field::setLabel(std::string label) {
  if (label_ == label) return;
  label_ = std::move(label);
  changed();
}

std::string Field::trimmed() const { return base::trim(text_); }
bool Field::blank() const { return base::blank(text_); }

base::Money Field::money() const { return base::Money::leading(trimmed()); }
std::optional<base::Date> Field::date() const { return base::Date::parse(trimmed()); }

void Field::offers(store::Sql sql, std::string column) {
  offers([sql = std::move(sql)] { return sql; }, std::move(column));
}

void Field::offers(std::function<store::Sql()> sql, std::string column) {
  names = column == "xm" || column == "jsxm";
  onDrop([this, sql = std::move(sql), column = std::move(column)] {
    std::vector<std::string> found = columnTexts(screen_.desk.store, sql(), column);
    std::erase(found, "");
    setChoices(std::move(found));
  });
}

void Field::set(std::string text) { replace(std::move(text)); }

void Field::replace(std::string text) {
  if (text_ == text) return;
  text_ = std::move(text);
  changed();
  raise(change_);
}

void Field::setChoices(std::vector<std::string> choices) {
  choices_ = std::move(choices);
  changed();
}

void Field::setColour(std::optional<Colour> colour) {
  if (colour_ == colour) return;
  colour_ = colour;
  changed();
}

void Field::setRecedes(bool on) {
  if (std::exchange(recedes_, on) != on) changed();
}

void Field::type(const std::string& text) {
  mustBeReachable();
  if (entry == Entry::Shown || entry == Entry::Choose) throw std::logic_error(name + " takes no typing");
  if (screen_.focused != this) focusIn();
  replace(base::validUtf8(text));
}

void Field::enter() {
  mustBeReachable();
  if (enter_.empty()) {
    leave();
    screen_.run([this] { screen_.moveOnFrom(*this); });
  } else {
    raise(enter_);
  }
}

void Field::drop() {
  mustBeReachable();
  raise(drop_);
}

void Field::pick(const std::string& choice) {
  drop();
  take(choice);
}

void Field::take(const std::string& choice) {
  mustBeReachable();
  if (entry != Entry::Date && std::find(choices_.begin(), choices_.end(), choice) == choices_.end())
    throw std::logic_error(name + " does not offer " + choice);
  screen_.run([&] {
    replace(choice);
    raise(pick_);
  });
}

void Field::click() {
  mustBeReachable();
  raise(click_);
}

void Field::doubleClick() {
  mustBeReachable();
  raise(doubleClick_);
}

}  // namespace kit
