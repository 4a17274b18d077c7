#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "runtime/numbers.hpp"

namespace tessarine {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

struct TextRow {
  const char* name;
  std::string got, want;
};

TEST(NumberText, ToText) {
  const std::vector<TextRow> rows = {
      {"str never an exponent", Str(1e20), "100000000000000000000"},
      {"str pads shortest digits", Str(1e23), "100000000000000000000000"},
      {"str fraction", Str(-0.0625), "-0.0625"},
      {"str whole", Str(2.0), "2"},
      {"str float digits", Str(0.1f), "0.1"},
      {"str float widened", Str(static_cast<double>(0.1f)), "0.10000000149011612"},
      {"str zero, nan, inf", Str(-0.0) + Str(std::nan("")) + Str(-kInf), "0NAN-INF"},
      {"str int min", Str(std::int32_t{-2147483647 - 1}), "-2147483648"},
      {"cstr separator at position 2", CStr(0.5, ","), "0,5"},
      {"cstr last plain", CStr(123456789012345.0, "."), "123456789012345"},
      {"cstr 1e15", CStr(1e15, "."), "1e+15"},
      {"cstr e form with separator", CStr(1.5e20, ","), "1,5e+20"},
      {"cstr small", CStr(1e-6, "."), "1e-06"},
      {"cstr smallest plain", CStr(1e-5, "."), "0.00001"},
      {"cstr tiny", CStr(-2.5e-300, "."), "-2.5e-300"},
      {"cstr zero, nan, inf",
       CStr(-0.0, ".") + CStr(kInf, ".") + CStr(-kInf, ".") + CStr(std::nan(""), ","),
       "0INF-INFNAN"},
      {"cstr int", CStr(std::int32_t{-42}), "-42"},
  };
  for (const auto& r : rows) EXPECT_EQ(r.got, r.want) << r.name;
}

// 1 + 2^-53: the exact midpoint between 1 and the next double.
const std::string kMidpoint = "1.00000000000000011102230246251565404236316680908203125";

struct NumberRow {
  const char* name;
  double got, want;
};

TEST(NumberText, FromText) {
  const std::vector<NumberRow> rows = {
      {"val small", Val("0.0000001"), 1e-7},
      {"val blanks and sign", Val(" \t-5x"), -5},
      {"val plus", Val("+12"), 12},
      {"val lone plus", Val("+"), 0},
      {"val point first", Val(".5"), 0.5},
      {"val exponent", Val("1.5e+20"), 1.5e20},
      {"val exponent needs a digit", Val("3e+"), 3},
      {"val comma stops", Val("1,5"), 1},
      {"val newline is no blank", Val("\n5"), 0},
      {"val overflow", Val("-1e400"), -kInf},
      {"val huge exponent", Val("1e99999999999999999999"), kInf},
      {"val underflow", Val("1e-400"), 0},
      {"val denormal", Val("4.9406564584124654e-324"), 5e-324},
      {"val midpoint ties to even", Val(kMidpoint), 1.0},
      {"val digit far beyond breaks tie", Val(kMidpoint + std::string(2000, '0') + "1"),
       std::nextafter(1.0, 2.0)},
      {"val many leading zeros", Val("0." + std::string(5000, '0') + "1e5010"), 1e9},
      {"cdbl comma", CDbl("-1,25", ","), -1.25},
      {"cdbl point is no separator", CDbl("1.25", ","), 1},
      {"cdbl second separator ends", CDbl("1,2,3", ","), 1.2},
      {"cdbl lone separator", CDbl(",", ","), 0},
      {"cdbl empty", CDbl("", ","), 0},
      {"cdbl e form", CDbl("1,5e+20", ","), 1.5e20},
      {"cdbl format output", CDbl("5.e-8", "."), 5e-8},
      {"cdbl multibyte separator", CDbl(std::string("2\xD9\xAB") + "5", "\xD9\xAB"), 2.5},
  };
  for (const auto& r : rows) EXPECT_EQ(r.got, r.want) << r.name;
}

// Qt sets the C locale from the environment; reading must not follow it.
TEST(NumberText, IgnoresCLocale) {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no de_DE.UTF-8 locale";
  const double small = Val("0.0000001");
  const std::string text = CStr(0.5, ".");
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(small, 1e-7);
  EXPECT_EQ(text, "0.5");
}

TEST(NumberText, RandomRoundTrips) {
  std::mt19937_64 rng(20240601);
  for (int i = 0; i < 200000;) {
    const double x = std::bit_cast<double>(rng());
    const auto f = std::bit_cast<float>(static_cast<std::uint32_t>(rng()));
    if (!std::isfinite(x) || !std::isfinite(f)) continue;
    ++i;
    ASSERT_EQ(CDbl(CStr(x, "."), "."), x) << CStr(x, ".");
    ASSERT_EQ(CDbl(CStr(x, ","), ","), x) << CStr(x, ",");
    ASSERT_EQ(Val(Str(x)), x) << Str(x);
    ASSERT_EQ(static_cast<float>(Val(Str(f))), f) << Str(f);
  }
}

}  // namespace
}  // namespace tessarine
