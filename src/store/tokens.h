// The words, signs and literals of a statement. Here the values in a statement are kept inside their places.
#pragma once

#include <string>
#include <vector>

#include "store/sql.h"

namespace store::dialect {

struct Token {
  enum class Kind { Word, Text, Number, Date, Sign, End };
  Kind kind = Kind::End;
  std::string text;  // of a literal: what stands between its marks
};

std::vector<Token> tokens(const Sql& sql);

}  // namespace store::dialect
