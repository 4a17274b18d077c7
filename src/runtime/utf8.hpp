// Internal UTF-8 helpers of the runtime: where characters begin and end, what code
// point they hold, and the case folding used by every comparison that ignores case.
//
// A character is a valid UTF-8 sequence (shortest form, no surrogate, at most
// U+10FFFF) or, failing that, a single byte. Walking a string forward from its
// start therefore always advances by 1 to 4 bytes and never runs past the end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine::utf8 {

// The replacement character, reported as the code of a byte that starts no valid
// sequence.
inline constexpr std::uint32_t kReplacement = 0xFFFD;

struct Char {
  std::uint32_t code;  // the code point, or kReplacement for an invalid byte
  std::uint8_t size;   // bytes taken, 1 to 4
  bool valid;
};

// The character starting at byte i; i must be < s.size().
Char Decode(std::string_view s, std::size_t i);

// Byte length of the character starting at byte i; i must be < s.size().
inline std::size_t CharSize(std::string_view s, std::size_t i) {
  const auto b = static_cast<unsigned char>(s[i]);
  if (b < 0x80) return 1;
  return Decode(s, i).size;
}

// Number of characters in s.
std::size_t Count(std::string_view s);

// Byte offset reached after skipping n characters from the start (s.size() when
// s has fewer).
std::size_t Advance(std::string_view s, std::size_t n);

// The code point that stands for `code` when case is ignored: ASCII, Latin-1
// Supplement, basic Greek and basic Cyrillic capitals map to their small letters
// (and final sigma to sigma); every other code point maps to itself.
std::uint32_t FoldCode(std::uint32_t code);

// Whether t occurs at byte offset i of s, ignoring case; on success *end is the
// byte offset in s just past the match. An invalid byte matches only itself.
bool MatchAt(std::string_view s, std::size_t i, std::string_view t, std::size_t* end);

// Byte offset of the first match of t in s at or after byte offset `from` (which
// must be a character boundary), ignoring case; npos if none. On success
// *matched_bytes is the length of the match in s. An empty t matches at `from`.
std::size_t Find(std::string_view s, std::string_view t, std::size_t from,
                 std::size_t* matched_bytes);

// Appends the UTF-8 encoding of a valid code point.
void Append(std::string& out, std::uint32_t code);

}  // namespace tessarine::utf8
