// "Area", base unit "Square Meters".
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Acres", 4046.856, 0.0002471054},
    {"Hectares", 10000.0, 0.0001},
    {"Square Millimeters", 1e-06, 1000000.0},
    {"Square centimeters", 0.0001, 10000.0},
    {"Square Meters", kNone, kNone},
    {"Square Kilometers", 1000000.0, 1e-06},
    {"Square Inches", 0.0006452, 1549.907005579665},
    {"Square Feet", 0.09290304, 10.76391},
    {"Square Yards", 0.83612736, 1.19599},
    {"Square Miles", 2590000.0, 3.861004e-07},
};
// clang-format on
}  // namespace

std::span<const UnitRow> AreaUnits() {
  return kRows;
}

}  // namespace tessarine
