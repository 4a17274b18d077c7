// The client's three text encoders, on bytes: percent encoding, form encoding and
// unpadded Base64. BasicHTTP offers them as its methods.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

// Keeps letters, digits and "$-_.+!*(),"; keeps "%" before two hex digits when
// keepEscapes, and ";/?:@=&" when keepReserved; every other byte becomes %XX.
std::string URLEncodeBytes(std::string_view text, bool keep_escapes, bool keep_reserved);
// "+" to %2B, blanks to "+", line ends to CR LF (a lone CR ends up as CR CR LF,
// kept as the forms always went out), then URLEncodeBytes(text, true, false).
std::string FormEncodeBytes(std::string_view text);
// Base64 of the bytes without "=" padding: 1 byte gives 2 characters.
std::string Base64Bytes(std::string_view bytes);

}  // namespace tessarine
