// Str, Val, CStr and CDbl: numbers to text and back, in the fixed notation with "."
// and in the user's notation with a separator passed in. Everything goes through
// std::to_chars and std::from_chars, which do not look at the C locale.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

#include "runtime/numbers.hpp"

namespace tessarine {

namespace {

// The shortest decimal digits that read back as the value, without sign, point or
// exponent: value = 0.d1d2... * 10^(exp10 + 1), i.e. d1.d2... * 10^exp10.
struct Digits {
  char d[32];
  int count = 0;
  int exp10 = 0;
};

template <typename F>
Digits ShortestDigits(F magnitude) {
  char buf[64];
  const auto r = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific);
  Digits out;
  const char* p = buf;
  for (; p < r.ptr && *p != 'e'; ++p) {
    if (*p != '.') out.d[out.count++] = *p;
  }
  // After 'e' comes a sign and at least two digits.
  std::from_chars(p + 2, r.ptr, out.exp10);
  if (p[1] == '-') out.exp10 = -out.exp10;
  return out;
}

// Lays digits out in plain form: no exponent, `sep` before any fraction digits.
void AppendPlain(std::string& out, const Digits& g, std::string_view sep) {
  const int int_digits = g.exp10 + 1;
  if (int_digits <= 0) {
    out += '0';
    out += sep;
    out.append(static_cast<std::size_t>(-int_digits), '0');
    out.append(g.d, static_cast<std::size_t>(g.count));
  } else if (int_digits >= g.count) {
    out.append(g.d, static_cast<std::size_t>(g.count));
    out.append(static_cast<std::size_t>(int_digits - g.count), '0');
  } else {
    out.append(g.d, static_cast<std::size_t>(int_digits));
    out += sep;
    out.append(g.d + int_digits, static_cast<std::size_t>(g.count - int_digits));
  }
}

// NAN, INF, -INF and 0 (for either zero); false for any other value.
template <typename F>
bool ExceptionalText(F x, std::string& out) {
  if (std::isnan(x)) {
    out = "NAN";
  } else if (std::isinf(x)) {
    out = x < 0 ? "-INF" : "INF";
  } else if (x == 0) {
    out = "0";
  } else {
    return false;
  }
  return true;
}

template <typename F>
std::string StrOf(F x) {
  std::string out;
  if (ExceptionalText(x, out)) return out;
  const Digits g = ShortestDigits(std::fabs(x));
  out.reserve(static_cast<std::size_t>(g.count) + static_cast<std::size_t>(std::abs(g.exp10)) + 4);
  if (x < 0) out += '-';
  AppendPlain(out, g, ".");
  return out;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Enough significant digits to tell apart any two neighbouring doubles and the
// point halfway between them (at most 767 digits); the digits beyond only matter
// as to whether one of them is not zero.
constexpr int kMaxSignificant = 800;

// The number at the start of s: blanks, sign, digits, separator, digits, exponent.
double ParseNumber(std::string_view s, std::string_view sep) {
  if (sep.empty()) sep = ".";
  std::size_t i = 0;
  const std::size_t n = s.size();
  while (i < n && (s[i] == ' ' || s[i] == '\t')) ++i;
  bool negative = false;
  if (i < n && (s[i] == '+' || s[i] == '-')) negative = s[i++] == '-';

  // value = digits * 10^scale, with at most kMaxSignificant digits kept.
  char buf[kMaxSignificant + 32];
  int kept = 0;
  bool any_digit = false;
  bool sticky = false;  // a nonzero digit was dropped
  std::int64_t scale = 0;
  const auto take = [&](char c, bool fraction) {
    any_digit = true;
    if (kept == 0 && c == '0') {
      if (fraction) --scale;
    } else if (kept < kMaxSignificant) {
      buf[kept++] = c;
      if (fraction) --scale;
    } else {
      sticky = sticky || c != '0';
      if (!fraction) ++scale;
    }
  };
  for (; i < n && IsDigit(s[i]); ++i) take(s[i], false);
  if (s.substr(i).starts_with(sep)) {
    i += sep.size();
    for (; i < n && IsDigit(s[i]); ++i) take(s[i], true);
  }
  if (!any_digit) return 0.0;

  std::int64_t exponent = 0;
  if (i < n && (s[i] == 'e' || s[i] == 'E')) {
    std::size_t j = i + 1;
    bool exp_negative = false;
    if (j < n && (s[j] == '+' || s[j] == '-')) exp_negative = s[j++] == '-';
    if (j < n && IsDigit(s[j])) {
      for (; j < n && IsDigit(s[j]); ++j) {
        if (exponent < 1'000'000'000) exponent = exponent * 10 + (s[j] - '0');
      }
      if (exp_negative) exponent = -exponent;
    }
  }

  const double zero = negative ? -0.0 : 0.0;
  if (kept == 0) return zero;
  if (sticky) {
    buf[kept++] = '1';
    --scale;
  }
  const double inf =
      negative ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
  const std::int64_t total = scale + exponent;
  // The decimal exponent of the leading digit decides the far ranges outright.
  const std::int64_t leading = total + kept - 1;
  if (leading > 400) return inf;
  if (leading < -400) return zero;

  char* p = buf + kept;
  *p++ = 'e';
  p = std::to_chars(p, buf + sizeof buf, total).ptr;
  double value = 0;
  const auto r = std::from_chars(buf, p, value);
  if (r.ec == std::errc::result_out_of_range) return leading > 0 ? inf : zero;
  return negative ? -value : value;
}

}  // namespace

std::string Str(double x) {
  return StrOf(x);
}
std::string Str(float x) {
  return StrOf(x);
}

std::string Str(std::int32_t n) {
  char buf[16];
  return std::string(buf, std::to_chars(buf, buf + sizeof buf, n).ptr);
}

double Val(std::string_view s) {
  return ParseNumber(s, ".");
}

double CDbl(std::string_view s, std::string_view decimal_separator) {
  return ParseNumber(s, decimal_separator);
}

std::string CStr(std::int32_t n) {
  return Str(n);
}

std::string CStr(double x, std::string_view decimal_separator) {
  std::string out;
  if (ExceptionalText(x, out)) return out;
  const double magnitude = std::fabs(x);
  const Digits g = ShortestDigits(magnitude);
  if (x < 0) out += '-';
  if (magnitude >= 1e-5 && magnitude < 1e15) {
    AppendPlain(out, g, decimal_separator);
    return out;
  }
  out += g.d[0];
  if (g.count > 1) {
    out += decimal_separator;
    out.append(g.d + 1, static_cast<std::size_t>(g.count - 1));
  }
  out += 'e';
  out += g.exp10 < 0 ? '-' : '+';
  const int e = std::abs(g.exp10);
  if (e < 10) out += '0';
  char buf[8];
  out.append(buf, std::to_chars(buf, buf + sizeof buf, e).ptr);
  return out;
}

}  // namespace tessarine
