#include "settings/prefs_scramble.hpp"

namespace tessarine {

// The shift works on bytes, and n is the text's length in bytes: for 7-bit text
// that is its length in characters, and any byte sequence, UTF-8 included, comes
// back whole. Codes run from 1 to 256 with one correction, as 256 has no byte
// form it is stored as 0, which Decode turns back into the same code.

std::string Encode(std::string_view text) {
  const int n = static_cast<int>(text.size());
  std::string out(text);
  for (char& c : out) {
    int code = static_cast<unsigned char>(c) + n;
    if (code >= 257) code -= 256;
    c = static_cast<char>(code & 0xFF);
  }
  return out;
}

std::string Decode(std::string_view text) {
  const int n = static_cast<int>(text.size());
  std::string out(text);
  for (char& c : out) {
    int code = static_cast<unsigned char>(c) - n;
    if (code < 1) code += 256;
    c = static_cast<char>(code & 0xFF);
  }
  return out;
}

}  // namespace tessarine
