#include "store/dialect.h"

#include <array>

#include "base/text.h"
#include "store/error.h"
#include "store/tokens.h"

namespace store::dialect {
namespace {

using Kind = Expr::Kind;

constexpr int deepest = 100;  // nesting and chains of arithmetic beyond it are no statement of ours

struct Operator {
  std::string_view sign;
  Kind kind;
};
constexpr std::array<Operator, 8> comparisons{{{"=", Kind::Equal},
                                               {"<>", Kind::NotEqual},
                                               {"<", Kind::Less},
                                               {">", Kind::Greater},
                                               {"<=", Kind::LessEqual},
                                               {"=<", Kind::LessEqual},
                                               {">=", Kind::GreaterEqual},
                                               {"=>", Kind::GreaterEqual}}};
constexpr std::array<Operator, 2> sums{{{"+", Kind::Add}, {"-", Kind::Subtract}}};
constexpr std::array<Operator, 2> products{{{"*", Kind::Multiply}, {"/", Kind::Divide}}};
constexpr std::array<Operator, 3> functions{{{"left", Kind::Left}, {"month", Kind::Month}, {"year", Kind::Year}}};
constexpr std::array<std::string_view, 14> keywords{"select", "from", "where", "group", "order", "by",  "and",
                                                    "or",     "not",  "like",  "is",    "null",  "asc", "desc"};

class Parser {
 public:
  explicit Parser(const Sql& sql) : tokens_(tokens(sql)) {}

  Select run() {
    Select result;
    expectWord("select");
    if (!takeSign("*")) result.columns = names();
    expectWord("from");
    result.table = name();
    if (takeWord("where")) result.where = either();
    if (takeWord("group")) {
      expectWord("by");
      result.group = names();
    }
    if (takeWord("order")) {
      expectWord("by");
      result.order = orders();
    }
    if (now().kind != Token::Kind::End) unexpected();
    return result;
  }

 private:
  struct Deeper {
    explicit Deeper(int& level) : depth(level) {
      if (++depth > deepest) throw StoreError(Fault::Statement, "语句的条件套得太深，不能执行！");
    }
    ~Deeper() { --depth; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;
    int& depth;
  };

  const Token& now() const { return tokens_[at_]; }
  bool isWord(std::string_view word) const {
    return now().kind == Token::Kind::Word && base::sameText(now().text, word);
  }
  bool takeWord(std::string_view word) { return isWord(word) && (++at_, true); }
  bool takeSign(std::string_view sign) {
    return now().kind == Token::Kind::Sign && now().text == sign && (++at_, true);
  }
  void expectWord(std::string_view word) {
    if (!takeWord(word)) unexpected();
  }
  void expectSign(std::string_view sign) {
    if (!takeSign(sign)) unexpected();
  }

  [[noreturn]] void unexpected() const {
    throw StoreError(Fault::Statement, now().kind == Token::Kind::End
                                           ? std::string("语句不完整，不能执行！")
                                           : "语句在“" + base::left(now().text, 20) + "”处不合规定，不能执行！");
  }

  std::string name() {
    if (now().kind != Token::Kind::Word) unexpected();
    for (std::string_view keyword : keywords) {
      if (isWord(keyword)) unexpected();
    }
    return tokens_[at_++].text;
  }

  std::vector<std::string> names() {
    std::vector<std::string> result;
    do result.push_back(name());
    while (takeSign(","));
    return result;
  }

  std::vector<Order> orders() {
    std::vector<Order> result;
    do {
      result.push_back({name()});
      if (takeWord("desc")) {
        result.back().descending = true;
      } else {
        takeWord("asc");
      }
    } while (takeSign(","));
    return result;
  }

  Expr either() { return chain("or", Kind::Or, &Parser::both); }
  Expr both() { return chain("and", Kind::And, &Parser::negated); }

  Expr chain(std::string_view word, Kind kind, Expr (Parser::*part)()) {
    Expr first = (this->*part)();
    if (!isWord(word)) return first;
    Expr result{kind, {}, {}};
    result.parts.push_back(std::move(first));
    while (takeWord(word)) result.parts.push_back((this->*part)());
    return result;
  }

  Expr negated() {
    if (!takeWord("not")) return comparison();
    const Deeper deeper(depth_);
    return wrap(Kind::Not, negated());
  }

  Expr comparison() {
    Expr left = sum();
    if (now().kind == Token::Kind::Sign) {
      for (const Operator& comparison : comparisons) {
        if (takeSign(comparison.sign)) return pair(comparison.kind, std::move(left), sum());
      }
    }
    if (takeWord("is")) {
      const bool inverted = takeWord("not");
      expectWord("null");
      return invertedIf(inverted, wrap(Kind::IsNull, std::move(left)));
    }
    const bool inverted = takeWord("not");
    if (takeWord("like")) return invertedIf(inverted, pair(Kind::Like, std::move(left), sum()));
    if (inverted) unexpected();
    return left;
  }

  Expr sum() { return arithmetic(sums, &Parser::product); }
  Expr product() { return arithmetic(products, &Parser::factor); }

  Expr arithmetic(const std::array<Operator, 2>& signs, Expr (Parser::*part)()) {
    Expr result = (this->*part)();
    for (int length = 1; true; ++length) {
      const Operator* found = nullptr;
      for (const Operator& sign : signs) {
        if (!found && takeSign(sign.sign)) found = &sign;
      }
      if (!found) return result;
      if (length > deepest) throw StoreError(Fault::Statement, "语句的算式太长，不能执行！");
      result = pair(found->kind, std::move(result), (this->*part)());
    }
  }

  Expr factor() {
    const Deeper deeper(depth_);
    if (takeSign("-")) return negative();
    if (takeSign("(")) {
      Expr inner = either();
      expectSign(")");
      return inner;
    }
    const Token token = now();
    switch (token.kind) {
      case Token::Kind::Text: return ++at_, Expr{Kind::Text, token.text, {}};
      case Token::Kind::Number: return ++at_, Expr{Kind::Number, token.text, {}};
      case Token::Kind::Date: return ++at_, Expr{Kind::Date, token.text, {}};
      case Token::Kind::Word: return word();
      default: unexpected();
    }
  }

  Expr negative() {
    if (now().kind == Token::Kind::Number && !now().text.starts_with('-')) {
      return {Kind::Number, "-" + tokens_[at_++].text, {}};
    }
    return wrap(Kind::Negate, factor());
  }

  Expr word() {
    for (std::string_view yesNo : {"true", "false"}) {
      if (takeWord(yesNo)) return {Kind::YesNo, std::string(yesNo), {}};
    }
    std::string text = name();
    if (!takeSign("(")) return {Kind::Column, std::move(text), {}};
    for (const Operator& function : functions) {
      if (!base::sameText(text, function.sign)) continue;
      Expr result = wrap(function.kind, sum());
      if (function.kind == Kind::Left) {
        expectSign(",");
        if (now().kind != Token::Kind::Number) unexpected();
        result.parts.push_back({Kind::Number, tokens_[at_++].text, {}});
      }
      expectSign(")");
      return result;
    }
    throw StoreError(Fault::Statement, "语句中没有“" + base::left(text, 20) + "”这样的函数！");
  }

  static Expr wrap(Kind kind, Expr part) {
    Expr result{kind, {}, {}};
    result.parts.push_back(std::move(part));
    return result;
  }
  static Expr invertedIf(bool inverted, Expr part) { return inverted ? wrap(Kind::Not, std::move(part)) : part; }
  static Expr pair(Kind kind, Expr left, Expr right) {
    Expr result = wrap(kind, std::move(left));
    result.parts.push_back(std::move(right));
    return result;
  }

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  int depth_ = 0;
};

}  // namespace

Select parse(const Sql& sql) { return Parser(sql).run(); }

}  // namespace store::dialect
