// "Mass/Weight", base unit "Kilograms".
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Nanograms", 1e-12, 1000000000000.0},
    {"Micrograms", 1e-09, 1000000000.0},
    {"Milligrams", 1e-06, 1000000.0},
    {"Grams", 0.001, 1000.0},
    {"Kilograms", kNone, kNone},
    {"Metric Tons", 1000.0, 0.001},
    {"Ounces", 0.02834952, 35.273965},
    {"US Pounds", 0.4535923, 2.204623},
    {"Stones", 6.350292, 0.1574731},
    {"Short Tons", 907.1847, 0.0011023114},
    {"Long Tons", 1016.047, 0.0009842064},
};
// clang-format on
}  // namespace

std::span<const UnitRow> MassUnits() {
  return kRows;
}

}  // namespace tessarine
