// "Energy", base unit "Joules". "Ergs" has its factors the other way round from
// "Ergs/Sec" under "Power"; users have always seen it so.
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Joules", kNone, kNone},
    {"Kilojoules", 1000.0, 0.001},
    {"Ergs", 10000000.0, 1e-07},
    {"Calories", 4.184, 0.2390057361376673},
    {"Kilocalories", 4184.0, 0.0002390057361376673},
    {"Electronvolts", 1.60217896e-19, 6.2415e+18},
    {"Kiloelectronvolts", 1.60217896e-16, 6241500000000000.0},
    {"Megaelectronvolts", 1.60217896e-13, 6241500000000.0},
    {"Gigaelectronvolts", 1.60217896e-10, 6241500000.0},
    {"Teraelectronvolts", 1.60217896e-07, 6241500.0},
    {"Watt*hours", 3600.0, 0.0002777777777777778},
    {"Kilowatt*Hours", 3600000.0, 2.777777777777778e-07},
    {"Watt*Seconds", kNone, kNone},
    {"BTU", 1055.056, 0.0009478169879134378},
    {"Foot Pounds", 1.355818, 0.7375621211696556},
};
// clang-format on
}  // namespace

std::span<const UnitRow> EnergyUnits() {
  return kRows;
}

}  // namespace tessarine
