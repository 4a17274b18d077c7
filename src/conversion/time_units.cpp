// "Time", base unit "Seconds". A year is 365 days, and "Picoseconds" and
// "Nanoseconds" keep the factors the program has always had (1e-10 and 1e-08).
#include "conversion/unit_table.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr UnitRow kRows[] = {
    {"Picoseconds", 1e-10, 10000000000.0},
    {"Nanoseconds", 1e-08, 100000000.0},
    {"Microseconds", 1e-06, 1000000.0},
    {"Milliseconds", 0.001, 1000.0},
    {"Seconds", kNone, kNone},
    {"Minutes", 60.0, 0.01666666666666667},
    {"Hours", 3600.0, 0.0002777777777777778},
    {"Days", 86400.0, 1.157407407407407e-05},
    {"Weeks", 604800.0, 1.653439153439154e-06},
    {"Years", 31536000.0, 3.170979198376459e-08},
    {"Decades", 315360000.0, 3.170979198376459e-09},
    {"Centuries", 3153600000.0, 3.170979198376459e-10},
};
// clang-format on
}  // namespace

std::span<const UnitRow> TimeUnits() {
  return kRows;
}

}  // namespace tessarine
