#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "runtime/numbers.hpp"

namespace tessarine {
namespace {

struct Row {
  const char* name;
  double x;
  const char* mask;
  const char* want;
};

// The program's masks: the keypad's "-#.##########" and its "e+" form (0 to 10 places),
// the statistics' fixed places, and "#"; no literal, no padding, no "e-".
TEST(Format, Masks) {
  const std::vector<Row> rows = {
      {"whole number ends in separator", 12, "-#.##", "12."},
      {"fraction has no trailing separator", 12.5, "-#.##", "12.5"},
      {"negative starts with minus", -12.5, "-#.##", "-12.5"},
      {"below one has a zero", 0.5, "-#.##", "0.5"},
      {"zero", 0, "-#.##", "0."},
      {"zero whole", 0, "#", "0"},
      {"real digits of a sum", 0.1 + 0.2, "-#.#################", "0.30000000000000004"},
      {"required places", 12, "-0.000", "12.000"},
      {"sci small", 0.00000005, "-#.########e+", "5.e-8"},
      {"sci large", 1.5e20, "-#.##e+", "1.5e+20"},
      {"sci one digit before separator", 123456, "-#.##e+", "1.23e+5"},
      {"sci carry into exponent", 9.999, "-#.##e+", "1.e+1"},
      {"sci zero", -0.0, "-#.##e+", "0.e+0"},
      {"sci negative", -0.00012, "-#.##e+", "-1.2e-4"},
      {"nan", std::nan(""), "-#.##", "NAN"},
      {"minus infinity", -std::numeric_limits<double>::infinity(), "-#.##e+", "-INF"},
  };
  for (const auto& r : rows) EXPECT_EQ(Format(r.x, r.mask, "."), r.want) << r.name;
  EXPECT_EQ(Format(-1.5, "-#.##", ","), "-1,5");
}

// The value rounded at `places` (after the point, or after the first digit in
// "e" form) from its exact decimal digits, ties away from zero: an independent
// reference for Format.
double RoundedExactly(double x, int places, bool sci) {
  char buf[2048];
  const auto fmt = sci ? std::chars_format::scientific : std::chars_format::fixed;
  std::string t(buf, std::to_chars(buf, buf + sizeof buf, std::fabs(x), fmt, sci ? 800 : 1100).ptr);
  const std::string exponent = sci ? t.substr(t.find('e')) : "";
  const std::size_t keep = t.find('.') + 1 + places;
  bool carry = t[keep] >= '5';
  t.resize(keep);
  for (std::size_t i = keep; carry && i-- > 0;) {
    if (t[i] == '.') continue;
    carry = t[i] == '9';
    t[i] = carry ? '0' : static_cast<char>(t[i] + 1);
  }
  t = (carry ? "1" : "") + t + exponent;
  double v = 0;
  std::from_chars(t.data(), t.data() + t.size(), v);
  return std::signbit(x) ? -v : v;
}

double RandomValue(std::mt19937_64& rng) {
  const double sign = rng() % 2 ? -1 : 1;
  switch (rng() % 4) {
    case 0: {  // any bit pattern
      const double x = std::bit_cast<double>(rng());
      return std::isfinite(x) ? x : 0.0;
    }
    case 1:  // dyadic fractions: exact ties at many places
      return sign *
             std::ldexp(static_cast<double>(rng() % (1 << 24)), -static_cast<int>(rng() % 40));
    case 2:  // ten digits ending in 5 times a power of ten: ties in "e" form
      return sign * static_cast<double>((rng() % 900000000 + 100000000) * 10 + 5) *
             std::pow(10.0, rng() % 6);
    default:
      return sign * static_cast<double>(rng() % 100000000) *
             std::pow(10.0, static_cast<int>(rng() % 30) - 15);
  }
}

TEST(Format, RandomValuesMatchExactRounding) {
  struct Case {
    const char* mask;
    int places;
    bool sci;
  };
  std::mt19937_64 rng(777);
  for (const Case c : {Case{"-#.########", 8, false}, Case{"-#.########e+", 8, true},
                       Case{"-0.000", 3, false}, Case{"#", 0, false}}) {
    for (int i = 0; i < 50000; ++i) {
      const double x = RandomValue(rng);
      const std::string got = Format(x, c.mask, ".");
      const double want = RoundedExactly(x, c.places, c.sci);
      ASSERT_EQ(CDbl(got, "."), want) << c.mask << " " << CStr(x, ".") << " -> " << got;
      ASSERT_EQ(got[0] == '-', want < 0) << got;
    }
  }
}

}  // namespace
}  // namespace tessarine
