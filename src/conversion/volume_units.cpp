// "Volume", base unit "Milliliters". "Cubic Centimeters" multiplies by 1.0 on the
// way in and by nothing on the way out.
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Milliliters", kNone, kNone},
    {"Liters", 1000.0, 0.001},
    {"Cubic Millimeters", 0.001, 1000.0},
    {"Cubic Centimeters", 1.0, kNone},
    {"Cubic Meters", 1000000.0, 1e-06},
    {"Metric Teaspoons", 5.0, 0.2},
    {"Metric Tablespoons", 20.0, 0.05},
    {"Metric Cups", 250.0, 0.004},
    {"Cubic Inches", 16.38710000932426, 0.06102361},
    {"Cubic Feet", 28316.9000923131, 3.53146e-05},
    {"Cubic Yards", 765000.0, 1.30718954248366e-06},
    {"Dry Ounces", 28.41199999116955, 0.0351963959},
    {"Fluid Ounces", 29.57300000713892, 0.0338146282},
    {"US Pints", 473.1764546819936, 0.00211337650068},
    {"US Quarts", 945.9999574300019, 0.0010570825},
    {"US Gallons", 3785.000000000111, 0.00026420079260237},
    {"Imperial Pints", 568.2599862174222, 0.0017597579},
    {"Imperial Quarts", 1136.000000000007, 0.00088028169014084},
    {"Imperial Gallons", 4546.000000000205, 0.00021997360316761},
    {"Imperial Teaspoons", 4.930000000000001, 0.2028397565922921},
    {"Imperial Tablespoons", 14.79, 0.0676132521974307},
    {"Imperial Cups", 236.584, 0.004226828526020357},
};
// clang-format on
}  // namespace

std::span<const UnitRow> VolumeUnits() {
  return kRows;
}

}  // namespace tessarine
