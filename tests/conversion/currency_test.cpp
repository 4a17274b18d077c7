// The currency list, its default rates, and conversions through rate texts.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "conversion/catalogue.hpp"
#include "conversion/conversion.hpp"
#include "conversion/currency_table.hpp"
#include "runtime/exceptions.hpp"

namespace tessarine {
namespace {

struct CurrencyText {
  const char* name;
  const char* rate;
};

// Rows checked as written, the first and the last among them; the rest of the table
// is held to its shape below.
// clang-format off
const std::pair<int, CurrencyText> kSampleRows[] = {
    {0, {"Euro", "1.2219"}},
    {1, {"Japanese yen", "110.1"}},
    {2, {"Pound sterling", "0.5594719"}},
    {3, {"U.S. dollar", "1.0"}},
    {4, {"Argentine peso", "---"}},
    {46, {"Venezuelan bolivar", "1915.2"}},
};
// clang-format on

constexpr int kYen = 1, kDollar = 3, kPeso = 4, kEuro = 0;

TEST(CurrencyTable, NamesAndDefaultRatesInRowOrder) {
  const std::vector<std::string> names = UnitNames(kCurrencyCategory);
  const CurrencyRates rates = DefaultCurrencyRates();
  ASSERT_EQ(static_cast<int>(names.size()), kCurrencyCount);
  for (const auto& [row, currency] : kSampleRows) {
    EXPECT_EQ(names[row], currency.name) << row;
    EXPECT_EQ(rates(row), currency.rate) << row;
  }
  // Every other rate is a positive number written out in full, or unavailable.
  std::set<std::string> seen;
  for (int i = 0; i < kCurrencyCount; ++i) {
    EXPECT_TRUE(seen.insert(names[i]).second) << names[i] << " twice";
    if (rates(i) == "---") continue;
    char* end = nullptr;
    EXPECT_GT(std::strtod(rates(i).c_str(), &end), 0) << names[i];
    EXPECT_EQ(*end, '\0') << names[i];
  }
}

// The default rates at work (yen to dollar, the euro's rate divided by like the others)
// are the Convert scripts'.
TEST(CurrencyConversion, UnavailableRates) {
  CurrencyRates rates = DefaultCurrencyRates();
  rates(kYen) = "--";
  struct Case {
    const char* name;
    int from, to;
  };
  const Case kCases[] = {
      {"default \"---\" as source", kPeso, kDollar},
      {"default \"---\" as target", kDollar, kPeso},
      {"\"--\" read from the file", kYen, kEuro},
      {"unavailable source, target row not in the list", kPeso, -1},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(Convert(kCurrencyCategory, c.from, c.to, 1.0, rates).status,
              ConversionStatus::kRateUnavailable);
  }
  // The target's rate is looked at only after a good source rate.
  EXPECT_THROW(Convert(kCurrencyCategory, kDollar, -1, 1.0, rates), OutOfBoundsException);
  EXPECT_THROW(Convert(kCurrencyCategory, 47, kDollar, 1.0, rates), OutOfBoundsException);
}

TEST(CurrencyConversion, RateTextsReadLikeVal) {
  CurrencyRates rates = DefaultCurrencyRates();
  rates(kYen) = "1.25      ";  // ten characters, trailing blanks kept
  rates(kEuro) = "0";
  EXPECT_EQ(rates(kYen).size(), 10u);
  EXPECT_EQ(Convert(kCurrencyCategory, kDollar, kYen, 4.0, rates).answer, 5.0);
  EXPECT_EQ(Convert(kCurrencyCategory, kYen, kDollar, 5.0, rates).answer, 4.0);
  EXPECT_EQ(Convert(kCurrencyCategory, kEuro, kDollar, 1.0, rates).answer, HUGE_VAL);
}

}  // namespace
}  // namespace tessarine
