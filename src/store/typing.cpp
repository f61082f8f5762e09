#include "store/typing.h"

#include <cmath>

#include "base/text.h"
#include "store/error.h"

namespace store {
namespace {

constexpr double moneyLimit = 9.0e14;  // what fits into tenths of a fen

// What a column type takes, and the words for its absence.
template <class T>
Value orRefuse(const std::optional<T>& value, const Value& given, const Column& column, std::string_view wanted) {
  if (value) return *value;
  throw StoreError(Fault::Statement, "“" + std::string(column.name) + "”一栏的内容“" + base::left(given.text(), 20) +
                                         "”不是" + std::string(wanted) + "，请改正后再试！");
}

std::optional<double> numberFor(const Value& value) {
  if (const auto* text = value.as<std::string>()) return numberIn(*text);
  if (const auto* number = value.as<double>(); number && !std::isfinite(*number)) return std::nullopt;
  if (value.as<double>() || value.as<base::Money>() || value.as<bool>()) return value.number();
  return std::nullopt;
}

std::optional<base::Money> moneyFor(const Value& value) {
  if (const auto* money = value.as<base::Money>()) return *money;
  const std::optional<double> number = numberFor(value);
  if (!number || std::abs(*number) >= moneyLimit) return std::nullopt;
  if (const auto* text = value.as<std::string>()) return base::Money::parse(*text);
  return base::Money::ofUnits(std::llround(*number * 10000));
}

std::optional<bool> yesFor(const Value& value) {
  if (const auto* text = value.as<std::string>()) return yesIn(*text);
  if (value.as<bool>() || value.as<double>()) return value.number() != 0;
  return std::nullopt;
}

std::optional<Bytes> bytesFor(const Value& value) {
  if (const auto* bytes = value.as<Bytes>()) return *bytes;
  return std::nullopt;
}

int digits(std::string_view text, std::size_t from, std::size_t count) {
  int result = 0;
  for (char c : text.substr(from, count)) {
    if (c < '0' || c > '9') return -1;
    result = result * 10 + (c - '0');
  }
  return result;
}

std::optional<base::Date> storedDate(std::string_view text) {
  if (text.size() < 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const base::Date date{digits(text, 0, 4), digits(text, 5, 2), digits(text, 8, 2)};
  if (date.year < 0 || date.month < 0 || date.day < 0) return std::nullopt;
  return date;
}

Value dateValue(std::string_view text) {
  if (const auto date = storedDate(text)) return *date;
  return text;
}

Value momentValue(std::string_view text) {
  const auto date = storedDate(text);
  if (!date || text.size() != 19) return text;
  return base::DateTime{*date, digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2)};
}

Bytes bytesOf(std::string_view raw) {
  const auto all = std::as_bytes(std::span(raw));
  return {all.begin(), all.end()};
}

template <class Convert> Value textual(std::string_view text, Convert convert) {
  return text.data() ? Value(convert(text)) : Value();
}

}  // namespace

std::optional<double> numberIn(std::string_view text) {
  if (!base::isNumeric(text)) return std::nullopt;
  const double number = base::leadingNumber(text);
  if (!std::isfinite(number)) return std::nullopt;
  return number;
}

std::optional<bool> yesIn(std::string_view text) {
  const std::string word = base::trim(text);
  for (std::string_view yes : {"true", "yes", "是"}) {
    if (base::sameText(word, yes)) return true;
  }
  for (std::string_view no : {"false", "no", "否"}) {
    if (base::sameText(word, no)) return false;
  }
  if (const auto number = numberIn(word)) return *number != 0;
  return std::nullopt;
}

Stored storedAs(Type type) {
  switch (type) {
    case Type::Number: return Stored::Real;
    case Type::Money:
    case Type::YesNo: return Stored::Whole;
    case Type::Bytes: return Stored::Bytes;
    default: return Stored::Text;
  }
}

Cell numberCell(double number) {
  constexpr double exact = 9007199254740992.0;  // whole numbers up to here are exact in both forms
  if (std::abs(number) <= exact && number == std::floor(number)) return static_cast<std::int64_t>(number);
  return number;
}

Value typed(Value value, const Column& column) {
  if (value.isNull()) return {};
  auto* text = value.as<std::string>();
  const bool blank = text && base::blank(*text);
  const bool keepsEmpty = column.type == Type::Text || column.type == Type::Date || column.type == Type::DateTime;
  if (blank && !keepsEmpty) return {};
  if (blank && column.type != Type::Text) return "";
  switch (column.type) {
    case Type::Text: return base::validUtf8(text ? std::move(*text) : value.text());
    case Type::Number: return orRefuse(numberFor(value), value, column, "数字");
    case Type::Money: return orRefuse(moneyFor(value), value, column, "金额");
    case Type::Date: return orRefuse(value.date(), value, column, "日期");
    case Type::DateTime: return orRefuse(value.moment(), value, column, "日期和时间");
    case Type::YesNo: return orRefuse(yesFor(value), value, column, "“是”或“否”");
    case Type::Bytes: return orRefuse(bytesFor(value), value, column, "图片等数据");
  }
  return {};
}

Cell cell(Value value) {
  if (auto* text = value.as<std::string>()) return std::move(*text);
  if (const auto* number = value.as<double>()) return numberCell(*number);
  if (const auto* yes = value.as<bool>()) return std::int64_t{*yes};
  if (const auto* money = value.as<base::Money>()) return money->units();
  if (const auto* date = value.as<base::Date>()) return date->iso();
  if (const auto* moment = value.as<base::DateTime>()) return moment->iso();
  if (auto* bytes = value.as<Bytes>()) return std::move(*bytes);
  return std::monostate{};
}

Value read(const Statement& statement, int column, Type type) {
  switch (type) {
    case Type::Text: return textual(statement.text(column), [](std::string_view text) { return Value(text); });
    case Type::Date: return textual(statement.text(column), dateValue);
    case Type::DateTime: return textual(statement.text(column), momentValue);
    case Type::Bytes: return textual(statement.text(column), bytesOf);
    default: break;
  }
  if (statement.isNull(column)) return {};
  switch (type) {
    case Type::Number: return statement.real(column);
    case Type::Money: return base::Money::ofUnits(statement.integer(column));
    default: return statement.integer(column) != 0;
  }
}

}  // namespace store
