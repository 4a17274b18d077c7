// HTTPModule: the small text tools under the HTTP client, with the few helpers the
// client shares between its files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

// What stands behind / before the first marker (case ignored); empty without one.
std::string GetAfter(std::string_view text, std::string_view marker);
std::string GetBefore(std::string_view text, std::string_view marker);
// Text without its surrounding double quotes, when it has them at both ends.
std::string Unquote(std::string_view text);
// True for four dot-separated fields none of which reads as a number other than
// "0": so "0.0.0.0" and "a.b.c.d" pass while "10.0.0.1" does not. Kept as it is.
bool IsIP(std::string_view text);

namespace http_detail {

// All fields of text split at sep, as NthField gives them one by one, in one pass.
std::vector<std::string> Fields(std::string_view text, std::string_view sep);
// A number read from the peer, made a 32-bit integer: cut toward zero and held to
// the range; not-a-number gives 0.
std::int32_t ToInt32(double x);
// The same for 64-bit values.
std::int64_t ToInt64(double x);

}  // namespace http_detail

}  // namespace tessarine
