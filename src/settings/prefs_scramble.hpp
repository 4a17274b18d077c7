// The scrambling of the preferences file's texts: each byte shifted by the text's
// length, against casual reading. No stored key; Decode(Encode(t)) == t.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

std::string Encode(std::string_view text);
std::string Decode(std::string_view text);

}  // namespace tessarine
