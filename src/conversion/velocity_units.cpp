// "Velocity", base unit "Meters/Second". Its mile (1609.269) is not the one of
// "Distance/Length".
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Meters/Second", kNone, kNone},
    {"Meters/Minute", 0.01666666666666667, 60.0},
    {"Meters/Hour", 0.0002777777777777778, 3600.0},
    {"KiloMeters/Second", 1000.0, 0.001},
    {"KiloMeters/Minute", 16.66666666666667, 0.06},
    {"KiloMeters/Hour", 0.2777777777777778, 3.6},
    {"Feet/Second", 0.3048, 3.280839895013123},
    {"Feet/Minute", 0.00508, 196.8503937007874},
    {"Feet/Hour", 8.466666666666667e-05, 11811.02362204724},
    {"Miles/Second", 1609.269, 0.0006214002},
    {"Miles/Minute", 26.82116, 0.037284},
    {"Miles/Hour", 0.4470193, 2.237039999999999},
    {"Knots", 0.5144444444444445, 1.943844492440604},
    {"Mach (Speed of Sound)", 295.4927055555555, 0.00338417829340288},
    {"Light Speed", 299792458.0, 3.33564095198152e-09},
};
// clang-format on
}  // namespace

std::span<const UnitRow> VelocityUnits() {
  return kRows;
}

}  // namespace tessarine
