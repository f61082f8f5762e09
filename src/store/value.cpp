#include "store/value.h"

#include <cmath>

#include "base/text.h"

namespace store {

namespace {

template <class... Fs> struct Overload : Fs... {
  using Fs::operator()...;
};

}  // namespace

bool Value::empty() const {
  const auto* text = as<std::string>();
  return isNull() || (text && text->empty());
}

std::string Value::text() const {
  return std::visit(Overload{[](std::monostate) { return std::string(); },
                             [](const std::string& text) { return text; },
                             [](double number) { return base::plainNumber(number); },
                             [](bool yes) { return std::string(yes ? "True" : "False"); },
                             [](base::Money money) { return money.plain(); },
                             [](const base::Date& date) { return date.plain(); },
                             [](const base::DateTime& moment) { return moment.plain(); },
                             [](const Bytes&) { return std::string(); }},
                    data_);
}

std::string Value::trimmed() const { return base::trim(text()); }

base::Money Value::money() const {
  if (const auto* money = as<base::Money>()) return *money;
  if (const auto* yes = as<bool>()) return base::Money::yuan(*yes ? 1 : 0);
  if (as<std::string>() || as<double>()) return base::Money::leading(text());
  return {};
}

double Value::number() const {
  if (const auto* number = as<double>()) return *number;
  if (const auto* text = as<std::string>()) return base::leadingNumber(*text);
  if (const auto* yes = as<bool>()) return *yes ? 1 : 0;
  if (const auto* money = as<base::Money>()) return static_cast<double>(money->units()) / 10000;
  return 0;
}

bool Value::yes() const {
  if (const auto* text = as<std::string>()) {
    const std::string word = base::trim(*text);
    if (base::sameText(word, "true") || word == "是") return true;
  }
  return number() != 0;
}

std::optional<base::Date> Value::date() const {
  if (const auto* date = as<base::Date>()) return *date;
  if (const auto* moment = as<base::DateTime>()) return moment->date;
  if (const auto* text = as<std::string>()) return base::Date::parse(*text);
  return std::nullopt;
}

std::optional<base::DateTime> Value::moment() const {
  if (const auto* date = as<base::Date>()) return base::DateTime{*date};
  if (const auto* moment = as<base::DateTime>()) return *moment;
  if (const auto* text = as<std::string>()) return base::DateTime::parse(*text);
  return std::nullopt;
}

const Bytes& Value::bytes() const {
  static const Bytes none;
  const auto* bytes = as<Bytes>();
  return bytes ? *bytes : none;
}

}  // namespace store
