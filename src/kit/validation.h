// Validation as data: a table of tests walked in order. The first that fails shows its message, puts the focus in its
// field and stops.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "kit/screen.h"

namespace kit {

struct Rule {
  Field* field;  // takes the focus on failure; null for none
  std::function<bool()> fails;
  std::string text, title;
  Box box = Box::Stop;
};

// The tests that rules are made of; all look at the trimmed text.
std::function<bool()> blank(const Field& field);
std::function<bool()> longerThan(const Field& field, std::size_t characters);
std::function<bool()> notNumeric(const Field& field);        // blank counts as not numeric
std::function<bool()> filledNotNumeric(const Field& field);  // blank passes
std::function<bool()> notAmount(const Field& field);         // no number, or more than money can hold
std::function<bool()> filledNotAmount(const Field& field);   // blank passes
std::function<bool()> notDate(const Field& field);           // blank counts as no date
std::function<bool()> filledNotDate(const Field& field);     // blank passes

// A name with an apostrophe could be stored, and then be found, renamed and deleted by nobody: it is refused where it
// is entered.
std::function<bool()> holdsQuote(const Field& field);
constexpr const char* quoteRefused = "名称中不能含有单引号（'），请改用中文引号！     ";

const Rule* broken(const std::vector<Rule>& rules);  // the first that does not hold; null when all do
void tell(Person& person, const Rule& rule);         // its message; the focus goes into its field
// True when every rule holds; else the first that does not was told.
bool holds(Person& person, const std::vector<Rule>& rules);

}  // namespace kit
