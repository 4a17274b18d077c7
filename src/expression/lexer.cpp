#include "expression/lexer.hpp"

namespace tessarine::expression {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsNameChar(char c) {
  return IsLetter(c) || IsDigit(c) || c == '_';
}
bool IsContinuationByte(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

}  // namespace

Token Lexer::Next() {
  while (pos_ < source_.size() && (source_[pos_] == ' ' || source_[pos_] == '\t')) ++pos_;
  Token token;
  token.offset = pos_;
  token.line = line_;
  token.line_start = line_start_;
  if (pos_ >= source_.size()) {
    token.kind = TokenKind::kEnd;
    return token;
  }
  const std::size_t start = pos_;
  const char c = source_[pos_];
  if (c == '\r' || c == '\n') {
    // CR, LF and CR LF each end one line.
    ++pos_;
    if (c == '\r' && pos_ < source_.size() && source_[pos_] == '\n') ++pos_;
    ++line_;
    line_start_ = pos_;
    token.kind = TokenKind::kLineEnd;
  } else if (IsDigit(c) || (c == '.' && pos_ + 1 < source_.size() && IsDigit(source_[pos_ + 1]))) {
    while (pos_ < source_.size() && IsDigit(source_[pos_])) ++pos_;
    if (pos_ < source_.size() && source_[pos_] == '.') {
      ++pos_;
      while (pos_ < source_.size() && IsDigit(source_[pos_])) ++pos_;
    }
    // An exponent only when a digit follows the e and its sign; "2e" stays a number and a name.
    if (pos_ < source_.size() && (source_[pos_] == 'e' || source_[pos_] == 'E')) {
      std::size_t p = pos_ + 1;
      if (p < source_.size() && (source_[p] == '+' || source_[p] == '-')) ++p;
      if (p < source_.size() && IsDigit(source_[p])) {
        while (p < source_.size() && IsDigit(source_[p])) ++p;
        pos_ = p;
      }
    }
    token.kind = TokenKind::kNumber;
  } else if (IsLetter(c)) {
    while (pos_ < source_.size() && IsNameChar(source_[pos_])) ++pos_;
    token.kind = TokenKind::kName;
  } else {
    ++pos_;
    switch (c) {
      case '+':
        token.kind = TokenKind::kPlus;
        break;
      case '-':
        token.kind = TokenKind::kMinus;
        break;
      case '*':
        token.kind = TokenKind::kStar;
        break;
      case '/':
        token.kind = TokenKind::kSlash;
        break;
      case '\\':
        token.kind = TokenKind::kBackslash;
        break;
      case '^':
        token.kind = TokenKind::kCaret;
        break;
      case '(':
        token.kind = TokenKind::kOpenParen;
        break;
      case ')':
        token.kind = TokenKind::kCloseParen;
        break;
      case ',':
        token.kind = TokenKind::kComma;
        break;
      default:
        // The whole of a multi-byte character, so that an error points at it.
        while (pos_ < source_.size() && IsContinuationByte(source_[pos_])) ++pos_;
        token.kind = TokenKind::kInvalid;
        break;
    }
  }
  token.text = source_.substr(start, pos_ - start);
  return token;
}

int ColumnOf(std::string_view source, const Token& token) {
  int column = 1;
  for (std::size_t i = token.line_start; i < token.offset && i < source.size(); ++i)
    if (!IsContinuationByte(source[i])) ++column;
  return column;
}

}  // namespace tessarine::expression
