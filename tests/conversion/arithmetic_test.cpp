// The conversion arithmetic on the worked examples users know, temperatures, and rows
// that the lists do not have.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "conversion/catalogue.hpp"
#include "conversion/conversion.hpp"

namespace tessarine {
namespace {

struct Example {
  const char* name;
  int category, from, to;
  double value;
  double expected;
};

TEST(ConversionArithmetic, WorkedExamplesToTheLastBit) {
  const Example kExamples[] = {
      {"100 Celsius to Fahrenheit", 7, 0, 1, 100.0, 212.0},
      {"100 Fahrenheit to Celsius", 7, 1, 0, 100.0, 37.77777777777778},
      {"300 Kelvin to Celsius", 7, 2, 0, 300.0, 26.839999999999975},
      {"0 Celsius to Kelvin", 7, 0, 2, 0.0, 273.16},
      {"1 Ergs to Joules", 3, 2, 0, 1.0, 10000000.0},
      {"1 Picoseconds to Nanoseconds", 8, 0, 1, 1.0, 0.01},
      {"1 Acres to Acres", 0, 0, 0, 1.0, 0.9999999706224},
      {"1 Ergs/Sec to Watts", 4, 4, 0, 1.0, 1e-07},
  };
  const CurrencyRates rates = DefaultCurrencyRates();
  for (const Example& e : kExamples) {
    SCOPED_TRACE(e.name);
    const Conversion c = Convert(e.category, e.from, e.to, e.value, rates);
    ASSERT_EQ(c.status, ConversionStatus::kConverted);
    EXPECT_EQ(c.answer, e.expected);
  }
}

TEST(ConversionArithmetic, TemperatureFormulasStepByStep) {
  const CurrencyRates rates;
  for (double x : {-40.0, 0.1, 1.1, 98.6, 212.5, 451.0, -273.16}) {
    SCOPED_TRACE(x);
    const double from_f = ((x - 32.0) * 5.0) / 9.0;
    EXPECT_EQ(Convert(7, 1, 0, x, rates).answer, from_f);
    EXPECT_EQ(Convert(7, 1, 2, x, rates).answer, from_f + 273.16);
    EXPECT_EQ(Convert(7, 2, 1, x, rates).answer, ((x - 273.16) * 1.8) + 32.0);
    EXPECT_EQ(Convert(7, 0, 0, x, rates).answer, x);
  }
}

TEST(ConversionArithmetic, SameUnitIsNotAlwaysTheIdentity) {
  const CurrencyRates rates;
  EXPECT_NE(Convert(0, 0, 0, 1.0, rates).answer, 1.0);   // Acres
  EXPECT_NE(Convert(9, 11, 9, 1.0, rates).answer, 1.0);  // Miles/Hour
  EXPECT_NE(Convert(7, 1, 1, 0.1, rates).answer, 0.1);   // Fahrenheit
  // Cubic Centimeters: times 1.0 in, nothing out.
  EXPECT_EQ(Convert(10, 3, 3, 0.1, rates).answer, 0.1);
}

TEST(ConversionArithmetic, RowsOutsideTheLists) {
  const CurrencyRates rates;
  struct Case {
    const char* name;
    int category, from, to;
    ConversionStatus status;
    double answer;
  };
  const Case kCases[] = {
      {"no source row: base stays 0", 2, 14, 3, ConversionStatus::kConverted, 0.0},
      {"no source row, Fahrenheit target", 7, -1, 1, ConversionStatus::kConverted, 32.0},
      {"no target row", 2, 0, 14, ConversionStatus::kNoAnswer, 0.0},
      {"no target temperature", 7, 0, 3, ConversionStatus::kNoAnswer, 0.0},
      {"category below the list", -1, 0, 0, ConversionStatus::kNoAnswer, 0.0},
      {"category above the list", 11, 0, 0, ConversionStatus::kNoAnswer, 0.0},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.name);
    const Conversion result = Convert(c.category, c.from, c.to, 5.0, rates);
    EXPECT_EQ(result.status, c.status);
    if (c.status == ConversionStatus::kConverted) {
      EXPECT_EQ(result.answer, c.answer);
    }
  }
}

TEST(ConversionArithmetic, OverflowRunsThroughAsFloats) {
  const CurrencyRates rates;
  EXPECT_EQ(Convert(2, 12, 2, 1e300, rates).answer, HUGE_VAL);  // Light Years to Meters
  EXPECT_TRUE(std::isnan(Convert(2, 0, 1, NAN, rates).answer));
}

TEST(Catalogue, CategoriesAndTheirSizes) {
  const char* kNames[] = {"Area",  "Currency",    "Distance/Length", "Energy",
                          "Power", "Mass/Weight", "Pressure",        "Temperature",
                          "Time",  "Velocity",    "Volume"};
  const size_t kSizes[] = {10, 47, 14, 15, 7, 11, 15, 3, 12, 15, 22};
  ASSERT_EQ(CategoryNames().size(), 11u);
  for (int i = 0; i < 11; ++i) {
    EXPECT_EQ(CategoryNames()[i], kNames[i]);
    EXPECT_EQ(UnitNames(i).size(), kSizes[i]) << kNames[i];
    EXPECT_EQ(ShowsCurrencyUpdateInfo(i), i == 1) << kNames[i];
  }
  EXPECT_STREQ(kConvertCategoryKey, "ConvertCategoryPopUpSetting");
  EXPECT_STREQ(kConvertFromKey, "ConvertFromPopUpSetting");
  EXPECT_STREQ(kConvertToKey, "ConvertToPopUpSetting");
  EXPECT_TRUE(UnitNames(11).empty());
  EXPECT_TRUE(UnitNames(-1).empty());
  EXPECT_EQ(UnitNames(7), (std::vector<std::string>{"Celsius", "Fahrenheit", "Kelvin"}));
}

}  // namespace
}  // namespace tessarine
