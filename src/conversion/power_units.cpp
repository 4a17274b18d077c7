// "Power", base unit "Watts". Its calorie (4.186746) is not the one of "Energy".
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Watts", kNone, kNone},
    {"Kilowatts", 1000.0, 0.001},
    {"Megawatts", 1000000.0, 1e-06},
    {"BTU/Hour", 0.2930711, 3.412141285851795},
    {"Ergs/Sec", 1e-07, 10000000.0},
    {"Calories/Sec", 4.186746, 0.238849},
    {"Kilocalories/Sec", 4186.746, 0.000238849},
};
// clang-format on
}  // namespace

std::span<const UnitRow> PowerUnits() {
  return kRows;
}

}  // namespace tessarine
