#include "http/server_override.hpp"

#include <cctype>
#include <string_view>

namespace tessarine {

namespace {

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(text[i])) != prefix[i]) return false;
  return true;
}

}  // namespace

std::string ApplyServerOverride(const std::string& url, const std::string& server) {
  if (server.empty()) return url;
  std::size_t start = 0;
  for (std::string_view scheme : {"http://", "ftp://"})
    if (StartsWithNoCase(url, scheme)) start = scheme.size();
  std::size_t end = url.find('/', start);
  if (end == std::string::npos) end = url.size();
  const std::size_t at = url.rfind('@', end == 0 ? 0 : end - 1);
  if (at != std::string::npos && at >= start) start = at + 1;
  return url.substr(0, start) + server + url.substr(end);
}

}  // namespace tessarine
