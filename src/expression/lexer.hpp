// Cuts a script into tokens, one at a time, skipping blanks.
#pragma once

#include <cstddef>
#include <string_view>

#include "expression/token.hpp"

namespace tessarine::expression {

// Reads tokens on demand; after the end it keeps returning kEnd.
class Lexer {
 public:
  explicit Lexer(std::string_view source) : source_(source) {}

  Token Next();

 private:
  std::string_view source_;
  std::size_t pos_ = 0;
  int line_ = 1;
  std::size_t line_start_ = 0;
};

// 1-based column of a token, counted in characters (UTF-8 code points) of its line.
int ColumnOf(std::string_view source, const Token& token);

}  // namespace tessarine::expression
