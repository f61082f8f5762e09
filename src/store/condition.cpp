#include "store/condition.h"

#include <cmath>
#include <optional>

#include "base/text.h"
#include "store/error.h"
#include "store/query.h"
#include "store/typing.h"

namespace store {
namespace {

using dialect::Expr;
using Kind = Expr::Kind;

struct Operand {
  std::string sql;
  Type type;
};

bool isLiteral(const Expr& expr) {
  return expr.kind == Kind::Text || expr.kind == Kind::Number || expr.kind == Kind::Date || expr.kind == Kind::YesNo;
}
bool isComparison(Kind kind) { return kind >= Kind::Equal && kind <= Kind::GreaterEqual; }
bool isDated(Type type) { return type == Type::Date || type == Type::DateTime; }
bool isNumeric(Type type) { return type == Type::Number || type == Type::Money || type == Type::YesNo; }

Kind mirrored(Kind kind) {
  switch (kind) {
    case Kind::Less: return Kind::Greater;
    case Kind::Greater: return Kind::Less;
    case Kind::LessEqual: return Kind::GreaterEqual;
    case Kind::GreaterEqual: return Kind::LessEqual;
    default: return kind;
  }
}

std::string sign(Kind kind) {
  switch (kind) {
    case Kind::Equal: return " = ";
    case Kind::NotEqual: return " <> ";
    case Kind::Less: return " < ";
    case Kind::Greater: return " > ";
    case Kind::LessEqual: return " <= ";
    case Kind::GreaterEqual: return " >= ";
    case Kind::Add: return " + ";
    case Kind::Subtract: return " - ";
    default: return " * ";
  }
}

[[noreturn]] void refuse(const std::string& message) { throw StoreError(Fault::Statement, message); }

class Writer {
 public:
  Writer(const Table& table, const Phrases& phrases, std::vector<Cell>& values)
      : table_(table), phrases_(phrases), values_(values) {}

  std::string condition(const Expr& expr) {
    switch (expr.kind) {
      case Kind::And: return joined(expr.parts, " and ");
      case Kind::Or: return joined(expr.parts, " or ");
      case Kind::Not: return "(not " + condition(expr.parts[0]) + ")";
      case Kind::IsNull: return "(" + operand(expr.parts[0]).sql + " is null)";
      case Kind::Like: return like(expr);
      case Kind::YesNo: return expr.text == "true" ? "(1 = 1)" : "(1 = 0)";
      default: break;
    }
    if (isComparison(expr.kind)) return comparison(expr.kind, expr.parts[0], expr.parts[1]);
    if (expr.kind == Kind::Column) {
      const Operand flag = operand(expr);
      if (flag.type == Type::YesNo) return "(" + flag.sql + " <> 0)";
    }
    refuse("语句的条件不完整，不能执行！");
  }

 private:
  std::string bound(Cell value) {
    const Stored form = std::holds_alternative<std::string>(value) ? Stored::Text
                        : std::holds_alternative<double>(value)    ? Stored::Real
                                                                   : Stored::Whole;
    values_.push_back(std::move(value));
    return phrases_.place(values_.size() - 1, form);
  }

  std::string joined(const std::vector<Expr>& parts, const char* word) {
    std::string result;
    for (const Expr& part : parts) result += (result.empty() ? "(" : word) + condition(part);
    return result + ")";
  }

  std::string shown(const Operand& operand) {
    return operand.type == Type::Text ? operand.sql : phrases_.shown(operand.sql, operand.type);
  }
  std::string plain(const Operand& a, Kind kind, const std::string& b) { return "(" + a.sql + sign(kind) + b + ")"; }
  std::string texts(const std::string& a, Kind kind, const std::string& b) {
    return "(" + phrases_.folded(a) + sign(kind) + phrases_.folded(b) + ")";
  }

  std::string like(const Expr& expr) {
    const Expr& pattern = expr.parts[1];
    if (pattern.kind != Kind::Text && pattern.kind != Kind::Number) refuse("语句中 like 的后面应是文字！");
    const std::string text = shown(operand(expr.parts[0]));
    return "(" + phrases_.like(text, bound(pattern.text)) + ")";
  }

  std::string comparison(Kind kind, const Expr& a, const Expr& b) {
    if (isLiteral(a) && !isLiteral(b)) return comparison(mirrored(kind), b, a);
    const Operand left = operand(a);
    switch (b.kind) {
      case Kind::Date: return withDate(kind, left, b.text);
      case Kind::Text: return withText(kind, left, b.text);
      case Kind::Number: return withNumber(kind, left, b.text);
      case Kind::YesNo: return withYesNo(kind, left, b.text == "true");
      default: return twoOperands(kind, left, operand(b));
    }
  }

  // A date between # marks against the date part of the other side. Stored dates and moments sort as texts, a moment
  // behind its bare date and before date + "~", so an index serves all of these. The empty date matches nothing.
  std::string withDate(Kind kind, const Operand& left, const std::string& text) {
    if (isNumeric(left.type)) refuse("语句中数字不能与日期相比较！");
    const std::string value = left.type == Type::Text ? phrases_.dateOf(left.sql) : left.sql;
    const std::string day = dateLiteral(text);
    const auto from = [&] { return bound(day); };
    const auto to = [&] { return bound(left.type == Type::DateTime ? day + "~" : day); };
    const std::string dated = "(" + value + " > '' and ";
    switch (kind) {
      case Kind::Equal: return within(value, from(), to());
      case Kind::NotEqual: return dated + "not " + within(value, from(), to()) + ")";
      case Kind::Less: return dated + value + " < " + from() + ")";
      case Kind::LessEqual: return dated + value + " <= " + to() + ")";
      case Kind::Greater: return "(" + value + " > " + to() + ")";
      default: return "(" + value + " >= " + from() + ")";
    }
  }
  static std::string within(const std::string& value, const std::string& from, const std::string& to) {
    return "(" + value + " >= " + from + " and " + value + " <= " + to + ")";
  }
  static std::string dateLiteral(const std::string& text) {
    const auto date = base::Date::parse(text);
    if (!date) refuse("日期“" + base::left(text, 20) + "”不正确，应该是 yyyy-m-d 格式！");
    return date->iso();
  }

  std::string withText(Kind kind, const Operand& left, const std::string& text) {
    if (left.type == Type::Text) return texts(left.sql, kind, bound(text));
    if (isDated(left.type)) {
      const std::optional<std::string> stored = storedMoment(left.type, text);
      if (!stored) return texts(shown(left), kind, bound(text));
      const bool ranged = kind == Kind::Less || kind == Kind::LessEqual;  // no date is not an early date
      const std::string test = plain(left, kind, bound(*stored));
      return ranged ? "(" + left.sql + " > '' and " + test + ")" : test;
    }
    if (left.type == Type::YesNo) {
      if (const auto yes = yesIn(text)) return withYesNo(kind, left, *yes);
    } else if (numberIn(text)) {
      return plain(left, kind, bound(amount(base::trim(text), left.type)));
    }
    return texts(shown(left), kind, bound(text));
  }
  static std::optional<std::string> storedMoment(Type type, const std::string& text) {
    if (text.empty()) return text;
    if (type == Type::Date) {
      const auto date = base::Date::parse(text);
      return date ? std::optional(date->iso()) : std::nullopt;
    }
    const auto moment = base::DateTime::parse(text);
    return moment ? std::optional(moment->iso()) : std::nullopt;
  }

  std::string withNumber(Kind kind, const Operand& left, const std::string& number) {
    if (left.type == Type::Text) return texts(left.sql, kind, bound(number));
    if (left.type == Type::YesNo) return withYesNo(kind, left, base::leadingNumber(number) != 0);
    if (isDated(left.type)) return texts(shown(left), kind, bound(number));
    return plain(left, kind, bound(amount(number, left.type)));
  }

  std::string withYesNo(Kind kind, const Operand& left, bool yes) {
    if (left.type == Type::YesNo) return plain(left, kind, bound(std::int64_t{yes}));
    refuse("语句中只有“是/否”的栏可以与 true 或 false 相比较！");
  }

  // A number as the other side stores it; one that no amount can hold is still compared rightly.
  static Cell amount(const std::string& text, Type type) {
    const double number = base::leadingNumber(text);
    if (type != Type::Money) return numberCell(number);
    const std::size_t point = text.find('.');
    const bool fits = point == std::string::npos || text.find_last_not_of('0') <= point + 4;
    if (const auto money = base::Money::parse(text); money && fits && std::abs(number) < 9e14) return money->units();
    return number * 10000;
  }

  std::string twoOperands(Kind kind, const Operand& left, const Operand& right) {
    if (left.type == Type::Text && right.type == Type::Text) return texts(left.sql, kind, right.sql);
    if (left.type == right.type) return plain(left, kind, right.sql);
    if (isNumeric(left.type) && isNumeric(right.type)) {
      const bool money = left.type == Type::Money || right.type == Type::Money;
      return money ? plain(asMoney(left), kind, asMoney(right).sql) : plain(left, kind, right.sql);
    }
    if (isDated(left.type) && isDated(right.type)) return plain(dayOf(left), kind, dayOf(right).sql);
    if (left.type == Type::Text && isNumeric(right.type)) return twoOperands(kind, asNumber(left), right);
    if (right.type == Type::Text && isNumeric(left.type)) return twoOperands(kind, left, asNumber(right));
    if (left.type == Type::Text && isDated(right.type)) return plain(dateOfText(left), kind, dayOf(right).sql);
    if (right.type == Type::Text && isDated(left.type)) return plain(dayOf(left), kind, dateOfText(right).sql);
    refuse("语句中日期不能与数字相比较！");
  }

  Operand dayOf(const Operand& value) {
    return value.type == Type::Date ? value : Operand{phrases_.dateOf(value.sql), Type::Date};
  }
  Operand dateOfText(const Operand& text) { return {phrases_.dateOf(text.sql), Type::Date}; }
  Operand asNumber(const Operand& value) {
    return value.type == Type::Text ? Operand{phrases_.numberOf(value.sql), Type::Number} : value;
  }
  static Operand asMoney(const Operand& value) {
    return value.type == Type::Money ? value : Operand{"(" + value.sql + " * 10000)", Type::Money};
  }

  Operand operand(const Expr& expr) {
    switch (expr.kind) {
      case Kind::Column: {
        const Column& column = columnOf(table_, expr.text);
        if (column.type == Type::Bytes) refuse("“" + std::string(column.name) + "”一栏不能用作条件！");
        return {quoted(column.name), column.type};
      }
      case Kind::Text: return {bound(expr.text), Type::Text};
      case Kind::Number: return {bound(numberCell(base::leadingNumber(expr.text))), Type::Number};
      case Kind::Date: return {bound(dateLiteral(expr.text)), Type::Date};
      case Kind::YesNo: return {bound(std::int64_t{expr.text == "true"}), Type::YesNo};
      case Kind::Left: {
        const std::string text = shown(operand(expr.parts[0]));
        return {phrases_.left(text, bound(numberCell(base::leadingNumber(expr.parts[1].text)))), Type::Text};
      }
      case Kind::Month: return {phrases_.month(date(expr.parts[0])), Type::Number};
      case Kind::Year: return {phrases_.year(date(expr.parts[0])), Type::Number};
      case Kind::Negate: {
        const Operand value = numeric(expr.parts[0]);
        return {"(-" + value.sql + ")", value.type};
      }
      case Kind::Add:
      case Kind::Subtract: return sum(expr);
      case Kind::Multiply: return product(expr);
      case Kind::Divide: return quotient(expr);
      default: refuse("语句中的条件不能当作数值使用！");
    }
  }

  std::string date(const Expr& expr) {
    const Operand value = operand(expr);
    if (isDated(value.type)) return value.sql;
    if (value.type == Type::Text) return phrases_.dateOf(value.sql);
    refuse("语句中 month 和 year 只能用于日期！");
  }

  Operand numeric(const Expr& expr) {
    if (expr.kind == Kind::Text && !numberIn(expr.text)) {
      refuse("语句中的“" + base::left(expr.text, 20) + "”不是数字，不能计算！");
    }
    if (expr.kind == Kind::Text) return {bound(numberCell(base::leadingNumber(expr.text))), Type::Number};
    Operand value = operand(expr);
    if (isDated(value.type)) refuse("语句中的日期不能用来计算！");
    return asNumber(value);
  }

  Operand sum(const Expr& expr) {
    const Operand left = numeric(expr.parts[0]), right = numeric(expr.parts[1]);
    const bool money = left.type == Type::Money || right.type == Type::Money;
    return money ? Operand{plain(asMoney(left), expr.kind, asMoney(right).sql), Type::Money}
                 : Operand{plain(left, expr.kind, right.sql), Type::Number};
  }
  static std::string real(const Operand& value) { return "cast(" + value.sql + " as double precision)"; }
  Operand product(const Expr& expr) {
    const Operand left = numeric(expr.parts[0]), right = numeric(expr.parts[1]);
    const bool both = left.type == Type::Money && right.type == Type::Money;
    const bool money = left.type == Type::Money || right.type == Type::Money;
    return {"(" + real(left) + " * " + right.sql + (both ? " / 10000)" : ")"), money ? Type::Money : Type::Number};
  }
  Operand quotient(const Expr& expr) {
    const Operand left = numeric(expr.parts[0]), right = numeric(expr.parts[1]);
    const bool scaled = left.type != Type::Money && right.type == Type::Money;
    const bool money = left.type == Type::Money && right.type != Type::Money;
    return {"(" + real(left) + (scaled ? " * 10000" : "") + " / nullif(" + right.sql + ", 0))",
            money ? Type::Money : Type::Number};
  }

  const Table& table_;
  const Phrases& phrases_;
  std::vector<Cell>& values_;
};

}  // namespace

const Column& columnOf(const Table& table, const std::string& name) {
  if (const Column* column = table.find(name)) return *column;
  throw StoreError(Fault::NoSuchColumn,
                   "数据表“" + std::string(table.name) + "”中没有“" + base::left(name, 40) + "”这一栏！");
}

std::string condition(const Expr& expr, const Table& table, const Phrases& phrases, std::vector<Cell>& values) {
  return Writer(table, phrases, values).condition(expr);
}

}  // namespace store
