#include "http/http_cookie.hpp"

#include <array>
#include <vector>

#include "http/http_module.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// The text before sep, and s moved behind it; all of s when sep is missing.
std::string TakeUntil(std::string& s, std::string_view sep) {
  const int at = InStr(s, sep);
  if (at == 0) {
    std::string all = std::move(s);
    s.clear();
    return all;
  }
  std::string head = Left(s, at - 1);
  s = Mid(s, at + Len(sep));
  return head;
}

// Clamped so that any count a server sends stays on the date's scale.
std::int64_t Seconds(double x) {
  constexpr double kLimit = 1e15;
  return http_detail::ToInt64(x > kLimit ? kLimit : (x < -kLimit ? -kLimit : x));
}

}  // namespace

std::string HTTPCookie::Data() const {
  return Name + "=" + Value;
}

bool HTTPCookie::Match(std::string_view domain, std::string_view path) const {
  if (Expired()) return false;
  const std::string p = CleanPath(path);
  if (!StrEq(Left(p, Len(Path)), Path)) return false;
  if (Left(Domain, 1) != "." && !IsIP(Domain)) return false;
  if (CountFields(Domain, ".") < 3) return false;
  return StrEq(Right(domain, Len(Domain)), Domain);
}

bool HTTPCookie::Parse(std::string_view text, std::string_view domain, std::string_view path,
                       std::string_view request_path) {
  Name.clear();
  Path.clear();
  Value.clear();
  Secure = false;
  const std::string s = ReplaceAll(Trim(text), "\"", "");
  const std::vector<std::string> fields = http_detail::Fields(s, ";");
  const std::string first = LTrim(fields.front());
  Name = http_detail::Fields(first, "=").front();
  Value = GetAfter(first, "=");
  for (std::size_t i = 1; i < fields.size(); ++i) {
    const std::string field = LTrim(fields[i]);
    const std::string key = GetBefore(field, "=");
    const std::string value = GetAfter(field, "=");
    if (StrEq(key, "expires")) {
      SetDate(value, false);
    } else if (StrEq(key, "path")) {
      Path = CleanPath(value);
    } else if (StrEq(key, "domain")) {
      Domain = value;
    } else if (StrEq(key, "max-age")) {
      SetDate(value, true);
    } else if (StrEq(key, "secure")) {
      Secure = true;
    }
  }
  if (Domain.empty()) Domain = std::string(domain);
  if (Path.empty()) Path = CleanPath(path);
  return Match(domain, request_path);
}

void HTTPCookie::SetDate(std::string_view text, bool is_max_age) {
  Date date(*clock_);
  if (is_max_age) {
    date.SetTotalSeconds(date.TotalSeconds() + Seconds(Val(text)));
    Expires = date;
    return;
  }
  static constexpr std::array<std::string_view, 12> kMonths = {
      "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  date.SetTotalSeconds(0);
  std::string s = Trim(GetAfter(text, ","));
  date.SetDay(http_detail::ToInt32(Val(TakeUntil(s, "-"))));
  // A month the table lacks leaves the month as it stands.
  const std::string month = TakeUntil(s, "-");
  for (std::size_t i = 0; i < kMonths.size(); ++i)
    if (StrEq(month, kMonths[i])) date.SetMonth(static_cast<int>(i) + 1);
  date.SetYear(http_detail::ToInt32(Val(TakeUntil(s, " "))));
  date.SetHour(http_detail::ToInt32(Val(TakeUntil(s, ":"))));
  date.SetMinute(http_detail::ToInt32(Val(TakeUntil(s, ":"))));
  date.SetSecond(http_detail::ToInt32(Val(TakeUntil(s, " "))));
  Expires = date;
}

bool HTTPCookie::Expired() const {
  if (!Expires) return false;
  return Date(*clock_).TotalSeconds() >= Expires->TotalSeconds();
}

std::string HTTPCookie::CleanPath(std::string_view path) {
  std::string p = Trim(path);
  if (Right(p, 1) == "/" && Len(p) > 1) p = Left(p, Len(p) - 1);
  if (Left(p, 1) != "/") p = "/" + p;
  return p;
}

bool HTTPCookie::Compare(const HTTPCookie& other) const {
  return StrEq(Name, other.Name) && StrEq(Domain, other.Domain) && StrEq(Path, other.Path);
}

}  // namespace tessarine
