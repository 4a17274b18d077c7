// "Temperature": three units whose steps are formulas, with base unit "Celsius".
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tessarine {

std::span<const std::string_view> TemperatureUnitNames();

// The value in "Celsius" of x degrees of the unit in row `row`; nothing for a row the
// list does not have.
std::optional<double> TemperatureToBase(int row, double x);
// The value in the unit of row `row` of b degrees "Celsius"; nothing for a row the
// list does not have.
std::optional<double> TemperatureFromBase(int row, double b);

}  // namespace tessarine
