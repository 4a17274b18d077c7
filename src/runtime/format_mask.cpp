// Format: the text of a number by a mask such as "-#.########" or "-#.##e+".
//
// The digits come from std::to_chars with a fixed precision, which rounds the
// exact binary value correctly but breaks an exact tie to even. The program
// wants ties away from zero, so an exact tie is detected from the bits of the
// value and the digits are then rounded up by hand.
#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "runtime/numbers.hpp"

namespace tessarine {

namespace {

// Every double has at most 1074 decimals and 767 significant digits, so digits
// asked beyond this precision are zeros; required ones are padded by hand.
constexpr int kMaxPrecision = 1100;

struct Mask {
  std::string_view prefix;
  std::string_view suffix;
  std::size_t int_zeros = 0;  // "0" before the point
  bool point = false;
  std::size_t places = 0;    // "#" and "0" after the point
  std::size_t required = 0;  // places up to the last "0" after the point
  bool scientific = false;
  bool exp_sign_always = false;  // "e+" rather than "e-"
};

bool IsPatternChar(char c) {
  return c == '-' || c == '#' || c == '0' || c == '.';
}

Mask ParseMask(std::string_view m) {
  Mask k;
  std::size_t i = 0;
  while (i < m.size() && !IsPatternChar(m[i])) ++i;
  k.prefix = m.substr(0, i);
  for (; i < m.size() && (m[i] == '-' || m[i] == '#' || m[i] == '0'); ++i) {
    if (m[i] == '0') ++k.int_zeros;
  }
  if (i < m.size() && m[i] == '.') {
    k.point = true;
    for (++i; i < m.size() && (m[i] == '#' || m[i] == '0'); ++i) {
      ++k.places;
      if (m[i] == '0') k.required = k.places;
    }
  }
  if (i + 1 < m.size() && m[i] == 'e' && (m[i + 1] == '+' || m[i + 1] == '-')) {
    k.scientific = true;
    k.exp_sign_always = m[i + 1] == '+';
    i += 2;
  }
  k.suffix = m.substr(i);
  return k;
}

// Whether x * 10^q has a fractional part of exactly one half, for a finite x > 0.
// With x = m * 2^e and m odd, 2 * x * 10^q = m * 5^q * 2^(e + q + 1). For q >= 0
// that is an odd integer exactly when e + q + 1 == 0. For q < 0 it is
// m / 5^-q * 2^(e + q + 1), an odd integer exactly when 5^-q divides m (the
// quotient is then odd) and again e + q + 1 == 0.
bool IsExactHalf(double x, std::int64_t q) {
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const auto biased = static_cast<int>((bits >> 52) & 0x7FF);
  std::uint64_t m = bits & ((std::uint64_t{1} << 52) - 1);
  std::int64_t e = -1074;
  if (biased != 0) {
    m |= std::uint64_t{1} << 52;
    e = biased - 1075;
  }
  if (m == 0) return false;
  const int tz = std::countr_zero(m);
  m >>= tz;
  e += tz;
  if (e + q + 1 != 0) return false;
  if (q >= 0) return true;
  if (q < -22) return false;  // 5^23 exceeds any 53-bit m
  for (std::int64_t k = 0; k < -q; ++k) {
    if (m % 5 != 0) return false;
    m /= 5;
  }
  return true;
}

// Adds one unit in the last digit of [begin, end), stepping over a point. True
// when the carry runs out of the front (all digits were 9 and are now 0).
bool RoundUp(char* begin, char* end) {
  for (char* p = end; p != begin;) {
    --p;
    if (*p == '.') continue;
    if (*p != '9') {
      ++*p;
      return false;
    }
    *p = '0';
  }
  return true;
}

// Fraction digits to print: all required ones, and the optional ones up to the
// last nonzero digit. `digits` holds the first of them; the rest are zeros.
void AppendFraction(std::string& out, std::string_view digits, const Mask& k) {
  std::size_t keep = k.required;
  const std::size_t last = digits.find_last_not_of('0');
  if (last != std::string_view::npos) keep = std::max(keep, last + 1);
  const std::size_t from_digits = std::min(keep, digits.size());
  out.append(digits.substr(0, from_digits));
  out.append(keep - from_digits, '0');
}

void AppendExponent(std::string& out, int exp10, const Mask& k) {
  out += 'e';
  if (exp10 < 0) {
    out += '-';
  } else if (k.exp_sign_always) {
    out += '+';
  }
  char buf[8];
  out.append(buf, std::to_chars(buf, buf + sizeof buf, std::abs(exp10)).ptr);
}

// Buffer for digits: 309 integer digits, point, kMaxPrecision + 1 decimals, and a
// spare place in front for a carry.
constexpr std::size_t kBufferSize = 1536;

void FormatPlain(std::string& out, double a, bool negative, const Mask& k, std::string_view sep) {
  const int p = static_cast<int>(std::min<std::size_t>(k.places, kMaxPrecision));
  char buf[kBufferSize];
  char* const begin = buf + 1;
  char* const limit = buf + kBufferSize;
  char* end = nullptr;
  char* first = begin;
  if (IsExactHalf(a, p)) {
    // The digits to p + 1 places are exact and end in 5: drop it and round up.
    end = std::to_chars(begin, limit, a, std::chars_format::fixed, p + 1).ptr - 1;
    if (p == 0) --end;  // and the point before it
    if (RoundUp(begin, end)) *--first = '1';
  } else {
    end = std::to_chars(begin, limit, a, std::chars_format::fixed, p).ptr;
  }
  const std::string_view text(first, static_cast<std::size_t>(end - first));
  const std::size_t dot = text.find('.');
  const std::string_view whole = text.substr(0, dot);
  const std::string_view fraction =
      dot == std::string_view::npos ? std::string_view() : text.substr(dot + 1);

  const bool is_zero = text.find_first_of("123456789") == std::string_view::npos;
  if (negative && !is_zero) out += '-';
  if (k.int_zeros > whole.size()) out.append(k.int_zeros - whole.size(), '0');
  out.append(whole);
  if (k.point) {
    out += sep;
    AppendFraction(out, fraction, k);
  }
}

void FormatScientific(std::string& out, double a, bool negative, const Mask& k,
                      std::string_view sep) {
  const int p = static_cast<int>(std::min<std::size_t>(k.places, kMaxPrecision));
  char buf[kBufferSize];
  char* const limit = buf + kBufferSize;
  std::string_view mantissa;
  int exp10 = 0;
  const auto split = [&](char* end) {
    // "d.ddde+XX" or "de+XX"
    const std::string_view t(buf, static_cast<std::size_t>(end - buf));
    const std::size_t e = t.find('e');
    mantissa = t.substr(0, e);
    std::from_chars(t.data() + e + 2, end, exp10);
    if (t[e + 1] == '-') exp10 = -exp10;
  };
  split(std::to_chars(buf, limit, a, std::chars_format::scientific, p).ptr);
  // A tie is only possible at the exponent printed: had the digits carried into a
  // new exponent (9.95 -> 1.0e+1), a tie would have gone up under either rule. So
  // when there is one, the text to p + 1 places is exact and ends in 5.
  if (a != 0 && IsExactHalf(a, std::int64_t{p} - exp10)) {
    split(std::to_chars(buf, limit, a, std::chars_format::scientific, p + 1).ptr);
    char* end = buf + mantissa.size() - 1;  // drop the final 5
    if (p == 0) --end;                      // and the point before it
    if (RoundUp(buf, end)) {
      buf[0] = '1';
      ++exp10;
    }
    mantissa = std::string_view(buf, static_cast<std::size_t>(end - buf));
  }
  if (negative && a != 0) out += '-';
  out += mantissa[0];
  if (k.point) {
    out += sep;
    AppendFraction(out, mantissa.size() > 2 ? mantissa.substr(2) : std::string_view(), k);
  }
  AppendExponent(out, exp10, k);
}

}  // namespace

std::string Format(double x, std::string_view mask, std::string_view decimal_separator) {
  if (std::isnan(x)) return "NAN";
  if (std::isinf(x)) return x < 0 ? "-INF" : "INF";
  const Mask k = ParseMask(mask);
  std::string out;
  // Short results stay in the string's own small buffer; only a long mask pays
  // for reserving up front.
  if (mask.size() > 32) out.reserve(mask.size() + decimal_separator.size() + 32);
  out.append(k.prefix);
  if (k.scientific) {
    FormatScientific(out, std::fabs(x), std::signbit(x), k, decimal_separator);
  } else {
    FormatPlain(out, std::fabs(x), std::signbit(x), k, decimal_separator);
  }
  out.append(k.suffix);
  return out;
}

}  // namespace tessarine
