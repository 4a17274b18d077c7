// Every unit of the factor categories, transcribed here as text and read with strtod,
// so that a mistyped name, row or literal in the tables shows up.
#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>
#include <string>
#include <vector>

#include "conversion/catalogue.hpp"
#include "conversion/conversion.hpp"

namespace tessarine {
namespace {

struct Row {
  const char* name;
  const char* to_base;  // "none": the step passes the value through
  const char* from_base;
};

struct Category {
  const char* label;
  int category;
  int base_row;
  std::vector<Row> rows;
};

const std::vector<Category>& Categories() {
  static const std::vector<Category> kCategories = {
      {"Area",
       0,
       4,
       {{"Acres", "4046.856", "0.0002471054"},
        {"Hectares", "10000.0", "0.0001"},
        {"Square Millimeters", "1e-06", "1000000.0"},
        {"Square centimeters", "0.0001", "10000.0"},
        {"Square Meters", "none", "none"},
        {"Square Kilometers", "1000000.0", "1e-06"},
        {"Square Inches", "0.0006452", "1549.907005579665"},
        {"Square Feet", "0.09290304", "10.76391"},
        {"Square Yards", "0.83612736", "1.19599"},
        {"Square Miles", "2590000.0", "3.861004e-07"}}},
      {"Length",
       2,
       2,
       {{"Millimeters", "0.001", "1000.0"},
        {"Centimeters", "0.01", "100.0"},
        {"Meters", "none", "none"},
        {"Kilometers", "1000.0", "0.001"},
        {"Inches", "0.0254", "39.37008"},
        {"Feet", "0.3048", "3.28084"},
        {"Yards", "0.9144", "1.0936134"},
        {"Rods", "5.0292", "0.1988387815159469"},
        {"Chains", "20.1168", "0.0497097"},
        {"Furlongs", "201.168", "0.00497097"},
        {"Miles", "1609.344", "0.0006213711922373339"},
        {"Parsecs", "3.086e+16", "3.240440699935191e-17"},
        {"Light Years", "9458000000000000.0", "1.057305984351871e-16"},
        {"Astronomical Units", "149613400000.0", "6.68389328762952e-12"}}},
      {"Energy",
       3,
       0,
       {{"Joules", "none", "none"},
        {"Kilojoules", "1000.0", "0.001"},
        {"Ergs", "10000000.0", "1e-07"},
        {"Calories", "4.184", "0.2390057361376673"},
        {"Kilocalories", "4184.0", "0.0002390057361376673"},
        {"Electronvolts", "1.60217896e-19", "6.2415e+18"},
        {"Kiloelectronvolts", "1.60217896e-16", "6241500000000000.0"},
        {"Megaelectronvolts", "1.60217896e-13", "6241500000000.0"},
        {"Gigaelectronvolts", "1.60217896e-10", "6241500000.0"},
        {"Teraelectronvolts", "1.60217896e-07", "6241500.0"},
        {"Watt*hours", "3600.0", "0.0002777777777777778"},
        {"Kilowatt*Hours", "3600000.0", "2.777777777777778e-07"},
        {"Watt*Seconds", "none", "none"},
        {"BTU", "1055.056", "0.0009478169879134378"},
        {"Foot Pounds", "1.355818", "0.7375621211696556"}}},
      {"Power",
       4,
       0,
       {{"Watts", "none", "none"},
        {"Kilowatts", "1000.0", "0.001"},
        {"Megawatts", "1000000.0", "1e-06"},
        {"BTU/Hour", "0.2930711", "3.412141285851795"},
        {"Ergs/Sec", "1e-07", "10000000.0"},
        {"Calories/Sec", "4.186746", "0.238849"},
        {"Kilocalories/Sec", "4186.746", "0.000238849"}}},
      {"Mass",
       5,
       4,
       {{"Nanograms", "1e-12", "1000000000000.0"},
        {"Micrograms", "1e-09", "1000000000.0"},
        {"Milligrams", "1e-06", "1000000.0"},
        {"Grams", "0.001", "1000.0"},
        {"Kilograms", "none", "none"},
        {"Metric Tons", "1000.0", "0.001"},
        {"Ounces", "0.02834952", "35.273965"},
        {"US Pounds", "0.4535923", "2.204623"},
        {"Stones", "6.350292", "0.1574731"},
        {"Short Tons", "907.1847", "0.0011023114"},
        {"Long Tons", "1016.047", "0.0009842064"}}},
      {"Pressure",
       6,
       1,
       {{"Pascal", "0.001", "1000.0"},
        {"Kilopascal", "none", "none"},
        {"Megapascal", "1000.0", "0.001"},
        {"Gigapascal", "1000000.0", "1e-06"},
        {"Millibars", "0.1", "10.0"},
        {"Bars", "100.0", "0.01"},
        {"Kilobars", "100000.0", "1e-05"},
        {"Megabars", "100000000.0", "1e-08"},
        {"Millimeters of Mercury", "0.1333224", "7.500615050434135"},
        {"Centimeters of Mercury", "1.333224", "0.7500615050434136"},
        {"Inches of Mercury", "3.38638", "0.2953005864669647"},
        {"Kilograms/Square Meter", "0.009803922", "102.0"},
        {"Pounds/Square Inch", "6.8947448", "0.1450380005362925"},
        {"Pounds/Square Foot", "0.0478813", "20.88498014882637"},
        {"Atmospheres", "101.325027", "0.009869230037313485"}}},
      {"Time",
       8,
       4,
       {{"Picoseconds", "1e-10", "10000000000.0"},
        {"Nanoseconds", "1e-08", "100000000.0"},
        {"Microseconds", "1e-06", "1000000.0"},
        {"Milliseconds", "0.001", "1000.0"},
        {"Seconds", "none", "none"},
        {"Minutes", "60.0", "0.01666666666666667"},
        {"Hours", "3600.0", "0.0002777777777777778"},
        {"Days", "86400.0", "1.157407407407407e-05"},
        {"Weeks", "604800.0", "1.653439153439154e-06"},
        {"Years", "31536000.0", "3.170979198376459e-08"},
        {"Decades", "315360000.0", "3.170979198376459e-09"},
        {"Centuries", "3153600000.0", "3.170979198376459e-10"}}},
      {"Velocity",
       9,
       0,
       {{"Meters/Second", "none", "none"},
        {"Meters/Minute", "0.01666666666666667", "60.0"},
        {"Meters/Hour", "0.0002777777777777778", "3600.0"},
        {"KiloMeters/Second", "1000.0", "0.001"},
        {"KiloMeters/Minute", "16.66666666666667", "0.06"},
        {"KiloMeters/Hour", "0.2777777777777778", "3.6"},
        {"Feet/Second", "0.3048", "3.280839895013123"},
        {"Feet/Minute", "0.00508", "196.8503937007874"},
        {"Feet/Hour", "8.466666666666667e-05", "11811.02362204724"},
        {"Miles/Second", "1609.269", "0.0006214002"},
        {"Miles/Minute", "26.82116", "0.037284"},
        {"Miles/Hour", "0.4470193", "2.237039999999999"},
        {"Knots", "0.5144444444444445", "1.943844492440604"},
        {"Mach (Speed of Sound)", "295.4927055555555", "0.00338417829340288"},
        {"Light Speed", "299792458.0", "3.33564095198152e-09"}}},
      {"Volume",
       10,
       0,
       {{"Milliliters", "none", "none"},
        {"Liters", "1000.0", "0.001"},
        {"Cubic Millimeters", "0.001", "1000.0"},
        {"Cubic Centimeters", "1.0", "none"},
        {"Cubic Meters", "1000000.0", "1e-06"},
        {"Metric Teaspoons", "5.0", "0.2"},
        {"Metric Tablespoons", "20.0", "0.05"},
        {"Metric Cups", "250.0", "0.004"},
        {"Cubic Inches", "16.38710000932426", "0.06102361"},
        {"Cubic Feet", "28316.9000923131", "3.53146e-05"},
        {"Cubic Yards", "765000.0", "1.30718954248366e-06"},
        {"Dry Ounces", "28.41199999116955", "0.0351963959"},
        {"Fluid Ounces", "29.57300000713892", "0.0338146282"},
        {"US Pints", "473.1764546819936", "0.00211337650068"},
        {"US Quarts", "945.9999574300019", "0.0010570825"},
        {"US Gallons", "3785.000000000111", "0.00026420079260237"},
        {"Imperial Pints", "568.2599862174222", "0.0017597579"},
        {"Imperial Quarts", "1136.000000000007", "0.00088028169014084"},
        {"Imperial Gallons", "4546.000000000205", "0.00021997360316761"},
        {"Imperial Teaspoons", "4.930000000000001", "0.2028397565922921"},
        {"Imperial Tablespoons", "14.79", "0.0676132521974307"},
        {"Imperial Cups", "236.584", "0.004226828526020357"}}},
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

TEST_P(FactorRowsTest, ListHoldsTheUnitsInRowOrder) {
  const Category& c = GetParam();
  std::vector<std::string> expected;
  for (const Row& row : c.rows) expected.emplace_back(row.name);
  EXPECT_EQ(UnitNames(c.category), expected);
}

TEST_P(FactorRowsTest, EachUnitToAndFromTheBaseUnit) {
  const Category& c = GetParam();
  const CurrencyRates no_rates;
  for (int row = 0; row < static_cast<int>(c.rows.size()); ++row) {
    for (double value : {1.0, 3.7, -0.0421}) {
      SCOPED_TRACE(std::string(c.rows[row].name) + " value " + std::to_string(value));
      const Conversion to_base = Convert(c.category, row, c.base_row, value, no_rates);
      ASSERT_EQ(to_base.status, ConversionStatus::kConverted);
      EXPECT_EQ(to_base.answer, Step(value, c.rows[row].to_base));
      const Conversion from_base = Convert(c.category, c.base_row, row, value, no_rates);
      ASSERT_EQ(from_base.status, ConversionStatus::kConverted);
      EXPECT_EQ(from_base.answer, Step(value, c.rows[row].from_base));
    }
  }
}

TEST_P(FactorRowsTest, UnitToUnitAppliesBothStepsInTurn) {
  const Category& c = GetParam();
  const CurrencyRates no_rates;
  const int last = static_cast<int>(c.rows.size()) - 1;
  const double value = 12.34;
  for (auto [from, to] : {std::pair{0, last}, std::pair{last, 0}, std::pair{last, last}}) {
    SCOPED_TRACE(std::string(c.rows[from].name) + " to " + c.rows[to].name);
    const double expected = Step(Step(value, c.rows[from].to_base), c.rows[to].from_base);
    EXPECT_EQ(Convert(c.category, from, to, value, no_rates).answer, expected);
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, FactorRowsTest, testing::ValuesIn(Categories()),
                         [](const testing::TestParamInfo<Category>& info) {
                           return std::string(info.param.label);
                         });

}  // namespace
}  // namespace tessarine
