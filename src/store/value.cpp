#include "store/value.h"

#include "base/text.h"

namespace store {
namespace {

template <class... Each> struct Overloaded : Each... { using Each::operator()...; };

}  // namespace

bool Value::empty() const {
  const auto* held = as<std::string>();
  return isNull() || (held && held->empty());
}

std::string Value::text() const {
  return std::visit(
      Overloaded{[](std::monostate) { return std::string(); }, [](const std::string& held) { return held; },
                 [](double held) { return base::plainNumber(held); },
                 [](bool held) { return std::string(held ? "True" : "False"); },
                 [](const Bytes&) { return std::string(); }, [](const auto& held) { return held.plain(); }},
      data_);
}

std::string Value::trimmed() const { return base::trim(text()); }

base::Money Value::money() const {
  if (const auto* held = as<base::Money>()) return *held;
  if (const auto* held = as<std::string>()) return base::Money::leading(*held);
  return base::Money::leading(base::plainNumber(number()));  // by its decimal text: 0.1 is a tenth
}

double Value::number() const {
  if (const auto* held = as<double>()) return *held;
  if (const auto* held = as<std::string>()) return base::leadingNumber(*held);
  if (const auto* held = as<bool>()) return *held ? 1 : 0;
  if (const auto* held = as<base::Money>()) return static_cast<double>(held->units()) / 10000;
  return 0;
}

bool Value::yes() const {
  if (as<std::string>() && base::sameText(trimmed(), Value(true).text())) return true;  // its own text reads back
  return number() != 0;
}

std::optional<base::Date> Value::date() const {
  if (const auto* held = as<base::Date>()) return *held;
  const auto held = moment();
  return held ? std::optional(held->date) : std::nullopt;
}

std::optional<base::DateTime> Value::moment() const {
  if (const auto* held = as<base::DateTime>()) return *held;
  if (const auto* held = as<base::Date>()) return base::DateTime{*held};
  if (const auto* held = as<std::string>()) return base::DateTime::parse(*held);
  return std::nullopt;
}

const Bytes& Value::bytes() const {
  static const Bytes none;
  const auto* held = as<Bytes>();
  return held ? *held : none;
}

}  // namespace store
