#include "store/tokens.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "base/text.h"
#include "store/error.h"

namespace store::dialect {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool startsWord(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

[[noreturn]] void refuse(const std::string& message) { throw StoreError(Fault::Statement, message); }

class Lexer {
 public:
  explicit Lexer(const Sql& sql) : sql_(sql), text_(sql.text()) {}

  std::vector<Token> run() {
    while (true) {
      skipBlanks();
      if (at_ >= text_.size()) break;
      if (insideValue()) {
        result_.push_back(bareValue());
      } else {
        result_.push_back(next());
      }
    }
    if (value_ < sql_.values().size()) refuseBare();
    result_.push_back({});
    return std::move(result_);
  }

 private:
  void skipBlanks() {
    while (at_ < text_.size() && !insideValue() && std::isspace(static_cast<unsigned char>(text_[at_]))) ++at_;
  }

  // Values are passed in order: value_ is the first one that the reading has not reached yet.
  bool insideValue() const { return value_ < sql_.values().size() && sql_.values()[value_].first <= at_; }
  std::size_t nextValueStart() const {
    return value_ < sql_.values().size() ? sql_.values()[value_].first : text_.size();
  }

  [[noreturn]] void refuseBare() const {
    const auto [from, to] = sql_.values()[value_];
    refuse("语句中应为数字的地方出现了“" + base::left(text_.substr(from, to - from), 20) + "”，请改为数字后再试！");
  }

  Token bareValue() {
    const auto [from, to] = sql_.values()[value_];
    const std::size_t sign = from < to && text_[from] == '-' ? 1 : 0;
    const std::size_t end = numberEnd(from + sign, to);
    if (end != to || end == from + sign) refuseBare();
    const bool runsOn = to < text_.size() && (isDigit(text_[to]) || text_[to] == '.' || startsWord(text_[to]));
    const bool runsIn = from > 0 && (isDigit(text_[from - 1]) || text_[from - 1] == '.' || startsWord(text_[from - 1]));
    if (runsOn || runsIn) refuseBare();
    at_ = to;
    ++value_;
    return {Token::Kind::Number, text_.substr(from, to - from)};
  }

  std::size_t numberEnd(std::size_t from, std::size_t limit) const {
    std::size_t end = from;
    while (end < limit && isDigit(text_[end])) ++end;
    if (end + 1 < limit && text_[end] == '.' && isDigit(text_[end + 1])) {
      ++end;
      while (end < limit && isDigit(text_[end])) ++end;
    }
    return end;
  }

  Token next() {
    const char c = text_[at_];
    if (c == '\'') return marked(Token::Kind::Text, '\'');
    if (c == '#') return marked(Token::Kind::Date, '#');
    const std::size_t limit = nextValueStart();
    if (isDigit(c) || (c == '.' && at_ + 1 < limit && isDigit(text_[at_ + 1]))) {
      return cut(Token::Kind::Number, numberEnd(at_, limit));
    }
    if (startsWord(c)) {
      std::size_t end = at_ + 1;
      while (end < limit && (startsWord(text_[end]) || isDigit(text_[end]))) ++end;
      return cut(Token::Kind::Word, end);
    }
    return sign(limit);
  }

  Token sign(std::size_t limit) {
    static constexpr std::array<std::string_view, 5> doubles{"<>", "<=", ">=", "=>", "=<"};
    if (at_ + 1 < limit && std::ranges::count(doubles, std::string_view(text_).substr(at_, 2))) {
      return cut(Token::Kind::Sign, at_ + 2);
    }
    if (std::string_view("(),=<>+-*/").find(text_[at_]) == std::string_view::npos) {
      refuse("语句中有不认识的符号“" + base::left(text_.substr(at_), 1) + "”！");
    }
    return cut(Token::Kind::Sign, at_ + 1);
  }

  // A literal between marks. There is no escaping: the next mark ends it, and only the statement itself may write one.
  Token marked(Token::Kind kind, char mark) {
    const std::size_t end = text_.find(mark, at_ + 1);
    for (; value_ < sql_.values().size(); ++value_) {
      const auto [from, to] = sql_.values()[value_];
      if (end != std::string::npos && from > end) break;
      if (end != std::string::npos && end < to) {
        refuse(mark == '\'' ? "内容中不能含有单引号（'），请改掉后再试！" : "日期中不能含有井号（#），请改掉后再试！");
      }
    }
    if (end == std::string::npos) refuse(mark == '\'' ? "语句中的引号没有成对！" : "语句中的日期符号（#）没有成对！");
    Token token{kind, text_.substr(at_ + 1, end - at_ - 1)};
    at_ = end + 1;
    return token;
  }

  Token cut(Token::Kind kind, std::size_t end) {
    Token token{kind, text_.substr(at_, end - at_)};
    at_ = end;
    return token;
  }

  const Sql& sql_;
  const std::string text_;
  std::size_t at_ = 0;
  std::size_t value_ = 0;
  std::vector<Token> result_;
};

}  // namespace

std::vector<Token> tokens(const Sql& sql) { return Lexer(sql).run(); }

}  // namespace store::dialect
