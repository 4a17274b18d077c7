// The conversion tab's lists: the eleven categories and the units each one offers, in
// the row order the arithmetic relies on (a unit is known only by its row).
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "conversion/unit_table.hpp"

namespace tessarine {

// Rows of the category popup.
enum ConversionCategory : int {
  kAreaCategory = 0,
  kCurrencyCategory = 1,
  kLengthCategory = 2,
  kEnergyCategory = 3,
  kPowerCategory = 4,
  kMassCategory = 5,
  kPressureCategory = 6,
  kTemperatureCategory = 7,
  kTimeCategory = 8,
  kVelocityCategory = 9,
  kVolumeCategory = 10,
};
inline constexpr int kCategoryCount = 11;

// Preferences keys of the three popups' rows (numbers, stored encrypted; default 0).
inline constexpr char kConvertCategoryKey[] = "ConvertCategoryPopUpSetting";
inline constexpr char kConvertFromKey[] = "ConvertFromPopUpSetting";
inline constexpr char kConvertToKey[] = "ConvertToPopUpSetting";

// The category popup's rows, "Area" to "Volume".
std::span<const std::string_view> CategoryNames();

// The rows both unit popups get for a category; none for a row outside 0..10.
std::vector<std::string> UnitNames(int category);

// The factor table of a category converted by constant factors; empty for
// "Currency", "Temperature" and rows outside 0..10.
std::span<const UnitRow> FactorTable(int category);

// Whether the "Update" key and the "Last updated:" line show for this category.
inline bool ShowsCurrencyUpdateInfo(int category) {
  return category == kCurrencyCategory;
}

}  // namespace tessarine
