#include "kit/validation.h"

#include <algorithm>

#include "base/date.h"
#include "base/text.h"

namespace kit {

std::function<bool()> blank(const Field& field) {
  return [&field] { return field.blank(); };
}
std::function<bool()> longerThan(const Field& field, std::size_t characters) {
  return [&field, characters] { return base::length(field.trimmed()) > characters; };
}
std::function<bool()> notNumeric(const Field& field) {
  return [&field] { return !base::isNumeric(field.trimmed()); };
}
std::function<bool()> filledNotNumeric(const Field& field) {
  return [&field] { return !field.blank() && !base::isNumeric(field.trimmed()); };
}
std::function<bool()> notAmount(const Field& field) {
  return [&field] { return !base::Money::parse(field.trimmed()); };
}
std::function<bool()> filledNotAmount(const Field& field) {
  return [&field] { return !field.blank() && !base::Money::parse(field.trimmed()); };
}
std::function<bool()> notDate(const Field& field) {
  return [&field] { return !base::Date::parse(field.trimmed()); };
}
std::function<bool()> filledNotDate(const Field& field) {
  return [&field] { return !field.blank() && !base::Date::parse(field.trimmed()); };
}

std::function<bool()> holdsQuote(const Field& field) {
  return [&field] { return field.text().find('\'') != std::string::npos; };
}

const Rule* broken(const std::vector<Rule>& rules) {
  const auto found = std::ranges::find_if(rules, [](const Rule& rule) { return rule.fails(); });
  return found == rules.end() ? nullptr : &*found;
}

void tell(Person& person, const Rule& rule) {
  person.tell(rule.box, rule.text, rule.title);
  if (rule.field) rule.field->focus();
}

bool holds(Person& person, const std::vector<Rule>& rules) {
  const Rule* rule = broken(rules);
  if (rule) tell(person, *rule);
  return !rule;
}

}  // namespace kit
