// "Distance/Length", base unit "Meters".
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Millimeters", 0.001, 1000.0},
    {"Centimeters", 0.01, 100.0},
    {"Meters", kNone, kNone},
    {"Kilometers", 1000.0, 0.001},
    {"Inches", 0.0254, 39.37008},
    {"Feet", 0.3048, 3.28084},
    {"Yards", 0.9144, 1.0936134},
    {"Rods", 5.0292, 0.1988387815159469},
    {"Chains", 20.1168, 0.0497097},
    {"Furlongs", 201.168, 0.00497097},
    {"Miles", 1609.344, 0.0006213711922373339},
    {"Parsecs", 3.086e+16, 3.240440699935191e-17},
    {"Light Years", 9458000000000000.0, 1.057305984351871e-16},
    {"Astronomical Units", 149613400000.0, 6.68389328762952e-12},
};
// clang-format on
}  // namespace

std::span<const UnitRow> LengthUnits() {
  return kRows;
}

}  // namespace tessarine
