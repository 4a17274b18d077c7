// Text primitives of the calculator's runtime.
//
// Strings are UTF-8. Every length and position counts characters (code points),
// 1-based, with 0 meaning "not found"; only the functions ending in B count bytes.
// A byte that does not start a valid UTF-8 sequence counts as one character of its
// own, so no input can make these functions read out of bounds. Searches and
// equality ignore case (see docs/primitives.md for the folding used).
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

int Len(std::string_view s);
int LenB(std::string_view s);

std::string Left(std::string_view s, int n);
std::string Right(std::string_view s, int n);
std::string Mid(std::string_view s, int start, int n);
std::string Mid(std::string_view s, int start);

// Position of the first t in s at or after `start` (0 and 1 both mean from the
// beginning), ignoring case; 0 if absent. An empty t is found at `start` (or 1),
// unless that lies beyond the end plus one.
int InStr(int start, std::string_view s, std::string_view t);
int InStr(std::string_view s, std::string_view t);
// The same by bytes, case significant.
int InStrB(int start, std::string_view s, std::string_view t);
int InStrB(std::string_view s, std::string_view t);

std::string NthField(std::string_view s, std::string_view sep, int n);
int CountFields(std::string_view s, std::string_view sep);

std::string Trim(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);

std::string ReplaceAll(std::string_view s, std::string_view a, std::string_view b);
std::string Replace(std::string_view s, std::string_view a, std::string_view b);

// Code point of the first character; 0 for the empty string.
int Asc(std::string_view s);
// The one character of code point n; empty for a value that is no character.
std::string Chr(int n);
// n in upper-case hexadecimal, no prefix; a negative n as its 32-bit two's complement.
std::string Hex(int n);

// String equality as the program means it: case ignored.
bool StrEq(std::string_view a, std::string_view b);
// 0 when equal with case significant, else -1 or 1 by code point order.
int StrComp(std::string_view a, std::string_view b, int mode);

}  // namespace tessarine
