#include "runtime/text.hpp"

#include <climits>
#include <cstddef>
#include <cstdint>

#include "runtime/utf8.hpp"

namespace tessarine {

namespace {

constexpr std::size_t npos = std::string_view::npos;

int ClampToInt(std::size_t n) {
  return n > INT_MAX ? INT_MAX : static_cast<int>(n);
}

// Byte offset of the character at 1-based position `pos` (pos >= 1), or npos when
// s has fewer than pos - 1 characters. Position Len(s) + 1 is the end of s.
std::size_t OffsetOfPosition(std::string_view s, int pos) {
  std::size_t i = 0;
  for (int k = 1; k < pos; ++k) {
    if (i >= s.size()) return npos;
    i += utf8::CharSize(s, i);
  }
  return i;
}

int PositionOfOffset(std::string_view s, std::size_t offset) {
  return ClampToInt(utf8::Count(s.substr(0, offset)) + 1);
}

bool IsBlank(std::uint32_t c) {
  return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0xA0 || c == 0x3000;
}

// Byte offset of the first character of s that is no blank (s.size() if none).
std::size_t FirstNonBlank(std::string_view s) {
  std::size_t i = 0;
  while (i < s.size()) {
    const utf8::Char c = utf8::Decode(s, i);
    if (!c.valid || !IsBlank(c.code)) break;
    i += c.size;
  }
  return i;
}

// Byte offset just past the last character of s that is no blank (0 if none).
std::size_t EndOfNonBlank(std::string_view s) {
  std::size_t end = 0;
  for (std::size_t i = 0; i < s.size();) {
    const utf8::Char c = utf8::Decode(s, i);
    i += c.size;
    if (!c.valid || !IsBlank(c.code)) end = i;
  }
  return end;
}

std::string ReplaceImpl(std::string_view s, std::string_view a, std::string_view b, bool all) {
  if (a.empty()) return std::string(s);
  std::string out;
  std::size_t pos = 0;
  while (pos <= s.size()) {
    std::size_t matched = 0;
    const std::size_t found = utf8::Find(s, a, pos, &matched);
    if (found == npos) break;
    out.append(s.substr(pos, found - pos));
    out.append(b);
    pos = found + matched;
    if (!all) break;
  }
  out.append(s.substr(pos));
  return out;
}

}  // namespace

int Len(std::string_view s) {
  return ClampToInt(utf8::Count(s));
}
int LenB(std::string_view s) {
  return ClampToInt(s.size());
}

std::string Left(std::string_view s, int n) {
  if (n <= 0) return {};
  return std::string(s.substr(0, utf8::Advance(s, static_cast<std::size_t>(n))));
}

std::string Right(std::string_view s, int n) {
  if (n <= 0) return {};
  const std::size_t len = utf8::Count(s);
  const auto want = static_cast<std::size_t>(n);
  if (want >= len) return std::string(s);
  return std::string(s.substr(utf8::Advance(s, len - want)));
}

std::string Mid(std::string_view s, int start, int n) {
  if (n == 0) return {};
  if (start < 1) start = 1;
  const std::size_t begin = OffsetOfPosition(s, start);
  if (begin == npos || begin >= s.size()) return {};
  const std::string_view rest = s.substr(begin);
  if (n < 0) return std::string(rest);
  return std::string(rest.substr(0, utf8::Advance(rest, static_cast<std::size_t>(n))));
}

std::string Mid(std::string_view s, int start) {
  return Mid(s, start, -1);
}

int InStr(int start, std::string_view s, std::string_view t) {
  if (start < 1) start = 1;
  const std::size_t from = OffsetOfPosition(s, start);
  if (from == npos) return 0;
  const std::size_t found = utf8::Find(s, t, from, nullptr);
  if (found == npos) return 0;
  return found == from ? start : PositionOfOffset(s, found);
}

int InStr(std::string_view s, std::string_view t) {
  return InStr(1, s, t);
}

int InStrB(int start, std::string_view s, std::string_view t) {
  if (start < 1) start = 1;
  const auto from = static_cast<std::size_t>(start) - 1;
  if (from > s.size()) return 0;
  const std::size_t found = s.find(t, from);
  return found == npos ? 0 : ClampToInt(found + 1);
}

int InStrB(std::string_view s, std::string_view t) {
  return InStrB(1, s, t);
}

std::string NthField(std::string_view s, std::string_view sep, int n) {
  if (n < 1) return {};
  if (sep.empty()) return n == 1 ? std::string(s) : std::string();
  std::size_t begin = 0;
  for (int k = 1;; ++k) {
    std::size_t matched = 0;
    const std::size_t found = utf8::Find(s, sep, begin, &matched);
    if (k == n) return std::string(s.substr(begin, found == npos ? npos : found - begin));
    if (found == npos) return {};
    begin = found + matched;
  }
}

int CountFields(std::string_view s, std::string_view sep) {
  if (sep.empty()) return 1;
  int count = 1;
  std::size_t begin = 0;
  for (;;) {
    std::size_t matched = 0;
    const std::size_t found = utf8::Find(s, sep, begin, &matched);
    if (found == npos || count == INT_MAX) return count;
    ++count;
    begin = found + matched;
  }
}

std::string Trim(std::string_view s) {
  const std::size_t begin = FirstNonBlank(s);
  const std::string_view rest = s.substr(begin);
  return std::string(rest.substr(0, EndOfNonBlank(rest)));
}

std::string LTrim(std::string_view s) {
  return std::string(s.substr(FirstNonBlank(s)));
}
std::string RTrim(std::string_view s) {
  return std::string(s.substr(0, EndOfNonBlank(s)));
}

std::string ReplaceAll(std::string_view s, std::string_view a, std::string_view b) {
  return ReplaceImpl(s, a, b, true);
}

std::string Replace(std::string_view s, std::string_view a, std::string_view b) {
  return ReplaceImpl(s, a, b, false);
}

int Asc(std::string_view s) {
  if (s.empty()) return 0;
  return static_cast<int>(utf8::Decode(s, 0).code);
}

std::string Chr(int n) {
  if (n < 0 || n > 0x10FFFF || (n >= 0xD800 && n <= 0xDFFF)) return {};
  std::string out;
  utf8::Append(out, static_cast<std::uint32_t>(n));
  return out;
}

std::string Hex(int n) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  auto v = static_cast<std::uint32_t>(n);
  char buf[8];
  int len = 0;
  do {
    buf[7 - len++] = kDigits[v & 0xF];
    v >>= 4;
  } while (v != 0);
  return std::string(buf + 8 - len, static_cast<std::size_t>(len));
}

bool StrEq(std::string_view a, std::string_view b) {
  std::size_t end = 0;
  return utf8::MatchAt(a, 0, b, &end) && end == a.size();
}

int StrComp(std::string_view a, std::string_view b, int /*mode*/) {
  // Byte order of UTF-8 is code point order; char_traits<char> compares bytes as
  // unsigned.
  const int c = a.compare(b);
  return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

}  // namespace tessarine
