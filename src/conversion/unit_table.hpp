// The units of one category as the conversion tab lists them, with the two factors
// that carry a value to the category's base unit and back from it.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tessarine {

// A factor of kNone means the step multiplies by nothing: the value passes through.
inline constexpr std::optional<double> kNone = std::nullopt;

// One row of a category's unit list: its text in the popups and its two factors. The
// factors are separate constants, each with its own rounding, never the reciprocal of
// the other; that is why some units converted to themselves drift.
struct UnitRow {
  std::string_view name;
  std::optional<double> to_base;
  std::optional<double> from_base;
};

// The factor tables, row N being row N of the category's list.
std::span<const UnitRow> AreaUnits();
std::span<const UnitRow> LengthUnits();
std::span<const UnitRow> EnergyUnits();
std::span<const UnitRow> PowerUnits();
std::span<const UnitRow> MassUnits();
std::span<const UnitRow> PressureUnits();
std::span<const UnitRow> TimeUnits();
std::span<const UnitRow> VelocityUnits();
std::span<const UnitRow> VolumeUnits();

}  // namespace tessarine
