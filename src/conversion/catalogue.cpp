// The category list and the way from a category row to its units.
#include "conversion/catalogue.hpp"

#include "conversion/currency_table.hpp"
#include "conversion/temperature.hpp"

namespace tessarine {

namespace {
constexpr std::string_view kCategories[] = {
    "Area",        "Currency", "Distance/Length", "Energy", "Power", "Mass/Weight", "Pressure",
    "Temperature", "Time",     "Velocity",        "Volume",
};
static_assert(std::size(kCategories) == kCategoryCount);
}  // namespace

std::span<const std::string_view> CategoryNames() {
  return kCategories;
}

std::span<const UnitRow> FactorTable(int category) {
  switch (category) {
    case kAreaCategory:
      return AreaUnits();
    case kLengthCategory:
      return LengthUnits();
    case kEnergyCategory:
      return EnergyUnits();
    case kPowerCategory:
      return PowerUnits();
    case kMassCategory:
      return MassUnits();
    case kPressureCategory:
      return PressureUnits();
    case kTimeCategory:
      return TimeUnits();
    case kVelocityCategory:
      return VelocityUnits();
    case kVolumeCategory:
      return VolumeUnits();
    default:
      return {};
  }
}

std::vector<std::string> UnitNames(int category) {
  std::vector<std::string> names;
  if (category == kCurrencyCategory) {
    for (const CurrencyRow& row : CurrencyUnits()) names.emplace_back(row.name);
  } else if (category == kTemperatureCategory) {
    for (std::string_view name : TemperatureUnitNames()) names.emplace_back(name);
  } else {
    for (const UnitRow& row : FactorTable(category)) names.emplace_back(row.name);
  }
  return names;
}

}  // namespace tessarine
