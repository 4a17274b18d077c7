// Number-to-text and text-to-number primitives.
//
// Two notations meet here. The fixed notation always uses "." (Str, Val); the
// system notation uses the user's decimal separator, which the caller passes in
// (CStr, CDbl, Format). The separator is a UTF-8 string of one character.
//
// Guarantees beyond the obvious: CDbl(CStr(x, sep), sep) == x for every finite
// double (CStr prints the shortest text that reads back exactly); Format rounds
// the exact binary value, ties away from zero; nothing here crashes, hangs or
// reads out of bounds on any input.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

// Fixed notation with ".", never an exponent. A float prints the digits of the
// 32-bit value, a double those of the 64-bit value.
std::string Str(double x);
std::string Str(float x);
std::string Str(std::int32_t n);

// The number at the start of s in fixed notation with "." (optional blanks, sign,
// digits, point, digits, and an exponent "e" with optional sign and digits). Stops
// at the first character that can't continue; no number gives 0.
double Val(std::string_view s);

// General text: digits for an integer; for a double the shortest text that reads
// back exactly, in plain form from 1e-5 up to below 1e15 and in "e" form outside
// ("1.5e+20", "1e-06"). Infinities print "INF" and "-INF", not-a-number "NAN".
std::string CStr(double x, std::string_view decimal_separator);
std::string CStr(std::int32_t n);

// Like Val, but in the system notation: the given separator, not ".". A second
// separator ends the number. "" and a lone separator give 0.
double CDbl(std::string_view s, std::string_view decimal_separator);

// Text of x by a mask: "-" sign, "#" optional digit, "0" required digit, "."
// separator (always printed), "e+" scientific form. See docs/primitives.md.
std::string Format(double x, std::string_view mask, std::string_view decimal_separator);

}  // namespace tessarine
