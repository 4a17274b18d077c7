// A token of a script: its kind and where it stands in the source.
#pragma once

#include <cstddef>
#include <string_view>

namespace tessarine::expression {

enum class TokenKind {
  kNumber,
  kName,
  kPlus,
  kMinus,
  kStar,
  kSlash,
  kBackslash,
  kCaret,
  kOpenParen,
  kCloseParen,
  kComma,
  kLineEnd,
  kEnd,
  kInvalid,  // a character that begins no token, such as "×" or "="
};

// One token; `text` points into the source, so the source must outlive it.
struct Token {
  TokenKind kind = TokenKind::kEnd;
  std::string_view text;
  std::size_t offset = 0;      // byte offset of the first character in the source
  int line = 1;                // 1-based
  std::size_t line_start = 0;  // byte offset of the first character of that line
};

}  // namespace tessarine::expression
