// The factor tables: every unit's name, a few units' factors transcribed as text and
// read with strtod, and a check over every row that its two factors undo each other,
// so that a mistyped name or literal, or a shifted row, shows up.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ostream>
#include <string>
#include <vector>

#include "conversion/catalogue.hpp"
#include "conversion/conversion.hpp"

namespace tessarine {
namespace {

struct Row {
  int row;
  const char* name;
  const char* to_base;  // "none": the step passes the value through
  const char* from_base;
};

struct Category {
  const char* label;
  int category;
  int base_row;
  std::vector<const char*> names;  // the list, in row order
  std::vector<Row> rows;           // the first, the base, one odd factor, the last
};

const std::vector<Category>& Categories() {
  static const std::vector<Category> kCategories = {
      // clang-format off
      {"Area", 0, 4,
       {"Acres", "Hectares", "Square Millimeters", "Square centimeters", "Square Meters",
        "Square Kilometers", "Square Inches", "Square Feet", "Square Yards", "Square Miles"},
       {{0, "Acres", "4046.856", "0.0002471054"}, {4, "Square Meters", "none", "none"},
        {6, "Square Inches", "0.0006452", "1549.907005579665"},
        {9, "Square Miles", "2590000.0", "3.861004e-07"}}},
      {"Length", 2, 2,
       {"Millimeters", "Centimeters", "Meters", "Kilometers", "Inches", "Feet", "Yards", "Rods",
        "Chains", "Furlongs", "Miles", "Parsecs", "Light Years", "Astronomical Units"},
       {{0, "Millimeters", "0.001", "1000.0"}, {2, "Meters", "none", "none"},
        {12, "Light Years", "9458000000000000.0", "1.057305984351871e-16"},
        {13, "Astronomical Units", "149613400000.0", "6.68389328762952e-12"}}},
      {"Energy", 3, 0,
       {"Joules", "Kilojoules", "Ergs", "Calories", "Kilocalories", "Electronvolts",
        "Kiloelectronvolts", "Megaelectronvolts", "Gigaelectronvolts", "Teraelectronvolts",
        "Watt*hours", "Kilowatt*Hours", "Watt*Seconds", "BTU", "Foot Pounds"},
       {{0, "Joules", "none", "none"}, {5, "Electronvolts", "1.60217896e-19", "6.2415e+18"},
        {12, "Watt*Seconds", "none", "none"},
        {14, "Foot Pounds", "1.355818", "0.7375621211696556"}}},
      {"Power", 4, 0,
       {"Watts", "Kilowatts", "Megawatts", "BTU/Hour", "Ergs/Sec", "Calories/Sec",
        "Kilocalories/Sec"},
       {{0, "Watts", "none", "none"}, {5, "Calories/Sec", "4.186746", "0.238849"},
        {6, "Kilocalories/Sec", "4186.746", "0.000238849"}}},
      {"Mass", 5, 4,
       {"Nanograms", "Micrograms", "Milligrams", "Grams", "Kilograms", "Metric Tons", "Ounces",
        "US Pounds", "Stones", "Short Tons", "Long Tons"},
       {{0, "Nanograms", "1e-12", "1000000000000.0"}, {4, "Kilograms", "none", "none"},
        {8, "Stones", "6.350292", "0.1574731"}, {10, "Long Tons", "1016.047", "0.0009842064"}}},
      {"Pressure", 6, 1,
       {"Pascal", "Kilopascal", "Megapascal", "Gigapascal", "Millibars", "Bars", "Kilobars",
        "Megabars", "Millimeters of Mercury", "Centimeters of Mercury", "Inches of Mercury",
        "Kilograms/Square Meter", "Pounds/Square Inch", "Pounds/Square Foot", "Atmospheres"},
       {{0, "Pascal", "0.001", "1000.0"}, {1, "Kilopascal", "none", "none"},
        {11, "Kilograms/Square Meter", "0.009803922", "102.0"},
        {14, "Atmospheres", "101.325027", "0.009869230037313485"}}},
      {"Time", 8, 4,
       {"Picoseconds", "Nanoseconds", "Microseconds", "Milliseconds", "Seconds", "Minutes", "Hours",
        "Days", "Weeks", "Years", "Decades", "Centuries"},
       {{0, "Picoseconds", "1e-10", "10000000000.0"}, {4, "Seconds", "none", "none"},
        {9, "Years", "31536000.0", "3.170979198376459e-08"},
        {11, "Centuries", "3153600000.0", "3.170979198376459e-10"}}},
      {"Velocity", 9, 0,
       {"Meters/Second", "Meters/Minute", "Meters/Hour", "KiloMeters/Second", "KiloMeters/Minute",
        "KiloMeters/Hour", "Feet/Second", "Feet/Minute", "Feet/Hour", "Miles/Second",
        "Miles/Minute", "Miles/Hour", "Knots", "Mach (Speed of Sound)", "Light Speed"},
       {{0, "Meters/Second", "none", "none"}, {11, "Miles/Hour", "0.4470193", "2.237039999999999"},
        {13, "Mach (Speed of Sound)", "295.4927055555555", "0.00338417829340288"},
        {14, "Light Speed", "299792458.0", "3.33564095198152e-09"}}},
      {"Volume", 10, 0,
       {"Milliliters", "Liters", "Cubic Millimeters", "Cubic Centimeters", "Cubic Meters",
        "Metric Teaspoons", "Metric Tablespoons", "Metric Cups", "Cubic Inches", "Cubic Feet",
        "Cubic Yards", "Dry Ounces", "Fluid Ounces", "US Pints", "US Quarts", "US Gallons",
        "Imperial Pints", "Imperial Quarts", "Imperial Gallons", "Imperial Teaspoons",
        "Imperial Tablespoons", "Imperial Cups"},
       {{0, "Milliliters", "none", "none"}, {3, "Cubic Centimeters", "1.0", "none"},
        {15, "US Gallons", "3785.000000000111", "0.00026420079260237"},
        {21, "Imperial Cups", "236.584", "0.004226828526020357"}}},
      // clang-format on
  };
  return kCategories;
}

// The value after one step: multiplied by the factor read from its text, or untouched.
double Step(double x, const std::string& factor) {
  return factor == "none" ? x : x * std::strtod(factor.c_str(), nullptr);
}

void PrintTo(const Category& c, std::ostream* os) {
  *os << c.label;
}

class FactorRowsTest : public testing::TestWithParam<Category> {};

TEST_P(FactorRowsTest, SampledUnitsToAndFromTheBaseUnit) {
  const Category& c = GetParam();
  const CurrencyRates no_rates;
  const std::vector<std::string> names = UnitNames(c.category);
  ASSERT_EQ(names, std::vector<std::string>(c.names.begin(), c.names.end()));
  for (const Row& r : c.rows) {
    SCOPED_TRACE(r.name);
    EXPECT_EQ(names[r.row], r.name);
    for (double value : {1.0, -0.0421}) {
      EXPECT_EQ(Convert(c.category, r.row, c.base_row, value, no_rates).answer,
                Step(value, r.to_base));
      EXPECT_EQ(Convert(c.category, c.base_row, r.row, value, no_rates).answer,
                Step(value, r.from_base));
    }
  }
  const Row& first = c.rows.front();
  const Row& last = c.rows.back();
  EXPECT_EQ(Convert(c.category, first.row, last.row, 12.34, no_rates).answer,
            Step(Step(12.34, first.to_base), last.from_base));
}

// Each row's factors are separate constants, but they describe one unit: a typo in
// either one moves their product far from 1.
TEST_P(FactorRowsTest, EveryRowsFactorsUndoEachOther) {
  const Category& c = GetParam();
  const CurrencyRates no_rates;
  const int size = static_cast<int>(c.names.size());
  ASSERT_EQ(static_cast<int>(FactorTable(c.category).size()), size);
  for (int row = 0; row < size; ++row) {
    SCOPED_TRACE(c.names[row]);
    const double there = Convert(c.category, row, c.base_row, 1.0, no_rates).answer;
    const double back = Convert(c.category, c.base_row, row, there, no_rates).answer;
    EXPECT_NEAR(back, 1.0, 2e-7);
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, FactorRowsTest, testing::ValuesIn(Categories()),
                         [](const testing::TestParamInfo<Category>& info) {
                           return std::string(info.param.label);
                         });

}  // namespace
}  // namespace tessarine
