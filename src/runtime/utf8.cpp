#include "runtime/utf8.hpp"

namespace tessarine::utf8 {

namespace {

bool IsContinuation(unsigned char b) {
  return (b & 0xC0) == 0x80;
}

}  // namespace

Char Decode(std::string_view s, std::size_t i) {
  const std::size_t left = s.size() - i;
  const auto b0 = static_cast<unsigned char>(s[i]);
  const Char invalid{kReplacement, 1, false};
  if (b0 < 0x80) return {b0, 1, true};
  if (b0 < 0xC2 || b0 > 0xF4) return invalid;  // continuation, overlong lead, or beyond U+10FFFF

  const auto at = [&](std::size_t k) { return static_cast<unsigned char>(s[i + k]); };
  if (b0 < 0xE0) {
    if (left < 2 || !IsContinuation(at(1))) return invalid;
    return {(std::uint32_t{b0} & 0x1F) << 6 | (at(1) & 0x3F), 2, true};
  }
  if (b0 < 0xF0) {
    if (left < 3) return invalid;
    const unsigned char b1 = at(1);
    // E0 needs A0..BF (no overlong form); ED needs 80..9F (no surrogate).
    const unsigned char lo = b0 == 0xE0 ? 0xA0 : 0x80;
    const unsigned char hi = b0 == 0xED ? 0x9F : 0xBF;
    if (b1 < lo || b1 > hi || !IsContinuation(at(2))) return invalid;
    return {(std::uint32_t{b0} & 0x0F) << 12 | std::uint32_t{b1 & 0x3Fu} << 6 | (at(2) & 0x3F), 3,
            true};
  }
  if (left < 4) return invalid;
  const unsigned char b1 = at(1);
  // F0 needs 90..BF (no overlong form); F4 needs 80..8F (at most U+10FFFF).
  const unsigned char lo = b0 == 0xF0 ? 0x90 : 0x80;
  const unsigned char hi = b0 == 0xF4 ? 0x8F : 0xBF;
  if (b1 < lo || b1 > hi || !IsContinuation(at(2)) || !IsContinuation(at(3))) return invalid;
  return {(std::uint32_t{b0} & 0x07) << 18 | std::uint32_t{b1 & 0x3Fu} << 12 |
              std::uint32_t{at(2) & 0x3Fu} << 6 | (at(3) & 0x3F),
          4, true};
}

std::size_t Count(std::string_view s) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < s.size(); i += CharSize(s, i)) ++n;
  return n;
}

std::size_t Advance(std::string_view s, std::size_t n) {
  std::size_t i = 0;
  for (; n > 0 && i < s.size(); --n) i += CharSize(s, i);
  return i;
}

std::uint32_t FoldCode(std::uint32_t c) {
  if (c < 0x80) return (c >= 'A' && c <= 'Z') ? c + 32 : c;
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;  // U+00D7 is the multiplication sign
  if (c >= 0x0386 && c <= 0x03A9) {
    if (c >= 0x0391 && c != 0x03A2) return c + 32;  // U+03A2 is unassigned
    if (c == 0x0386) return 0x03AC;
    if (c >= 0x0388 && c <= 0x038A) return c + 37;
    if (c == 0x038C) return 0x03CC;
    if (c == 0x038E || c == 0x038F) return c + 63;
    return c;
  }
  if (c == 0x03C2) return 0x03C3;  // final sigma compares as sigma
  if (c >= 0x0410 && c <= 0x042F) return c + 32;
  if (c >= 0x0400 && c <= 0x040F) return c + 80;
  return c;
}

bool MatchAt(std::string_view s, std::size_t i, std::string_view t, std::size_t* end) {
  std::size_t j = 0;
  while (j < t.size()) {
    if (i >= s.size()) return false;
    const auto a = static_cast<unsigned char>(s[i]);
    const auto b = static_cast<unsigned char>(t[j]);
    if (a < 0x80 && b < 0x80) {
      if (FoldCode(a) != FoldCode(b)) return false;
      ++i;
      ++j;
      continue;
    }
    const Char ca = Decode(s, i);
    const Char cb = Decode(t, j);
    // Two invalid bytes match only when they are the same byte.
    if (!ca.valid || !cb.valid) {
      if (ca.valid != cb.valid || a != b) return false;
    } else if (FoldCode(ca.code) != FoldCode(cb.code)) {
      return false;
    }
    i += ca.size;
    j += cb.size;
  }
  if (end != nullptr) *end = i;
  return true;
}

std::size_t Find(std::string_view s, std::string_view t, std::size_t from,
                 std::size_t* matched_bytes) {
  if (from > s.size()) return std::string_view::npos;
  for (std::size_t i = from;; i += CharSize(s, i)) {
    std::size_t end = 0;
    if (MatchAt(s, i, t, &end)) {
      if (matched_bytes != nullptr) *matched_bytes = end - i;
      return i;
    }
    if (i >= s.size()) return std::string_view::npos;
  }
}

void Append(std::string& out, std::uint32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

}  // namespace tessarine::utf8
