// HTTPCookie: one cookie read from a "Set-Cookie" value, and whether it belongs
// to a request.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "runtime/date.hpp"
#include "runtime/platform/clock.hpp"

namespace tessarine {

class HTTPCookie {
 public:
  explicit HTTPCookie(const Clock& clock) : clock_(&clock) {}

  std::string Name;
  std::optional<Date> Expires;  // nothing: the cookie never ends
  std::string Domain;
  std::string Path;
  std::string Value;
  bool Secure = false;

  // "Name=Value".
  std::string Data() const;
  bool Match(std::string_view domain, std::string_view path) const;
  // Reads a "Set-Cookie" value; the result is Match(domain, request_path).
  bool Parse(std::string_view text, std::string_view domain, std::string_view path,
             std::string_view request_path);
  // From a "max-age" count of seconds, or from the old "Wdy, DD-Mon-YYYY hh:mm:ss"
  // form read field by field in local time.
  void SetDate(std::string_view text, bool is_max_age);
  bool Expired() const;
  static std::string CleanPath(std::string_view path);
  // Same name, domain and path, case ignored.
  bool Compare(const HTTPCookie& other) const;

 private:
  const Clock* clock_;
};

}  // namespace tessarine
