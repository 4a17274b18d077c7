#include "http/http_module.hpp"

#include <cmath>
#include <limits>

#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

std::string GetAfter(std::string_view text, std::string_view marker) {
  const int at = InStr(text, marker);
  if (at == 0) return "";
  return Mid(text, at + Len(marker));
}

std::string GetBefore(std::string_view text, std::string_view marker) {
  const int at = InStr(text, marker);
  if (at == 0) return "";
  return Left(text, at - 1);
}

std::string Unquote(std::string_view text) {
  if (Left(text, 1) == "\"" && Right(text, 1) == "\"") return Mid(text, 2, Len(text) - 2);
  return std::string(text);
}

bool IsIP(std::string_view text) {
  const std::vector<std::string> fields = http_detail::Fields(text, ".");
  if (fields.size() != 4) return false;
  for (const std::string& field : fields)
    if (Val(field) != 0 && field != "0") return false;
  return true;
}

namespace http_detail {

namespace {

bool IsAscii(std::string_view s) {
  for (const char c : s)
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

char Lower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// Where sep stands in text from `from` on, ASCII letters matched without case.
std::size_t FindAscii(std::string_view text, std::string_view sep, std::size_t from) {
  if (sep.size() > text.size()) return std::string_view::npos;
  for (std::size_t i = from; i + sep.size() <= text.size(); ++i) {
    std::size_t k = 0;
    while (k < sep.size() && Lower(text[i + k]) == Lower(sep[k])) ++k;
    if (k == sep.size()) return i;
  }
  return std::string_view::npos;
}

}  // namespace

std::vector<std::string> Fields(std::string_view text, std::string_view sep) {
  std::vector<std::string> fields;
  if (sep.empty()) {
    fields.emplace_back(text);
    return fields;
  }
  if (!IsAscii(sep)) {
    // A separator outside ASCII folds as the runtime folds it.
    const int count = CountFields(text, sep);
    for (int i = 1; i <= count; ++i) fields.push_back(NthField(text, sep, i));
    return fields;
  }
  // An ASCII separator never matches inside a longer UTF-8 sequence, so bytes do.
  std::size_t start = 0;
  for (;;) {
    const std::size_t at = FindAscii(text, sep, start);
    if (at == std::string_view::npos) break;
    fields.emplace_back(text.substr(start, at - start));
    start = at + sep.size();
  }
  fields.emplace_back(text.substr(start));
  return fields;
}

std::int32_t ToInt32(double x) {
  if (std::isnan(x)) return 0;
  if (x >= 2147483647.0) return std::numeric_limits<std::int32_t>::max();
  if (x <= -2147483648.0) return std::numeric_limits<std::int32_t>::min();
  return static_cast<std::int32_t>(x);
}

std::int64_t ToInt64(double x) {
  if (std::isnan(x)) return 0;
  if (x >= 9.2e18) return std::numeric_limits<std::int64_t>::max();
  if (x <= -9.2e18) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(x);
}

}  // namespace http_detail

}  // namespace tessarine
