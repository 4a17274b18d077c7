// "Pressure", base unit "Kilopascal".
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Pascal", 0.001, 1000.0},
    {"Kilopascal", kNone, kNone},
    {"Megapascal", 1000.0, 0.001},
    {"Gigapascal", 1000000.0, 1e-06},
    {"Millibars", 0.1, 10.0},
    {"Bars", 100.0, 0.01},
    {"Kilobars", 100000.0, 1e-05},
    {"Megabars", 100000000.0, 1e-08},
    {"Millimeters of Mercury", 0.1333224, 7.500615050434135},
    {"Centimeters of Mercury", 1.333224, 0.7500615050434136},
    {"Inches of Mercury", 3.38638, 0.2953005864669647},
    {"Kilograms/Square Meter", 0.009803922, 102.0},
    {"Pounds/Square Inch", 6.8947448, 0.1450380005362925},
    {"Pounds/Square Foot", 0.0478813, 20.88498014882637},
    {"Atmospheres", 101.325027, 0.009869230037313485},
};
// clang-format on
}  // namespace

std::span<const UnitRow> PressureUnits() {
  return kRows;
}

}  // namespace tessarine
