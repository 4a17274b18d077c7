#include "http/http_encoders.hpp"

#include <cstdint>

#include "runtime/text.hpp"

namespace tessarine {

namespace {

bool IsHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool IsKept(char c) {
  if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) return true;
  return std::string_view("$-_.+!*(),").find(c) != std::string_view::npos;
}

}  // namespace

std::string URLEncodeBytes(std::string_view text, bool keep_escapes, bool keep_reserved) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    bool keep = IsKept(c);
    if (!keep && c == '%' && keep_escapes) {
      keep = i + 2 < text.size() && IsHexDigit(text[i + 1]) && IsHexDigit(text[i + 2]);
    } else if (!keep && c != '%') {
      keep = keep_reserved && std::string_view(";/?:@=&").find(c) != std::string_view::npos;
    }
    if (keep) {
      out += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      out += '%';
      out += kHex[byte >> 4];
      out += kHex[byte & 15];
    }
  }
  return out;
}

std::string FormEncodeBytes(std::string_view text) {
  std::string s = ReplaceAll(ReplaceAll(text, "+", "%2B"), " ", "+");
  if (s.find("\r\n") == std::string::npos) {
    s = ReplaceAll(s, "\r", "\r\n");
    if (s.find('\n') != std::string::npos) s = ReplaceAll(s, "\n", "\r\n");
  }
  return URLEncodeBytes(s, true, false);
}

std::string Base64Bytes(std::string_view bytes) {
  static constexpr char kAlphabet[] =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  out.reserve((bytes.size() * 8 + 5) / 6);
  std::uint32_t bits = 0;
  int held = 0;
  for (const char c : bytes) {
    bits = (bits << 8) | static_cast<unsigned char>(c);
    held += 8;
    while (held >= 6) {
      held -= 6;
      out += kAlphabet[(bits >> held) & 63];
    }
  }
  if (held > 0) out += kAlphabet[(bits << (6 - held)) & 63];
  return out;
}

}  // namespace tessarine
