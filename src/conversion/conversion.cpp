// The two-step conversion. The steps are kept apart and each product is a double of
// its own, so that a unit converted to itself shows the drift of its two factors.
#include "conversion/conversion.hpp"

#include <optional>

#include "conversion/catalogue.hpp"
#include "conversion/temperature.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

bool InRange(std::span<const UnitRow> table, int row) {
  return row >= 0 && static_cast<std::size_t>(row) < table.size();
}

Conversion Converted(double answer) {
  return {ConversionStatus::kConverted, answer};
}

Conversion ConvertByFactors(std::span<const UnitRow> table, int from_row, int to_row,
                            double value) {
  double base = 0.0;
  if (InRange(table, from_row)) {
    const std::optional<double>& to_base = table[from_row].to_base;
    base = to_base ? value * *to_base : value;
  }
  if (!InRange(table, to_row)) return {};
  const std::optional<double>& from_base = table[to_row].from_base;
  return Converted(from_base ? base * *from_base : base);
}

Conversion ConvertTemperature(int from_row, int to_row, double value) {
  const double base = TemperatureToBase(from_row, value).value_or(0.0);
  const std::optional<double> answer = TemperatureFromBase(to_row, base);
  if (!answer) return {};
  return Converted(*answer);
}

Conversion ConvertCurrency(int from_row, int to_row, double value, const CurrencyRates& rates) {
  if (InStr(rates(from_row), "--") != 0 || InStr(rates(to_row), "--") != 0)
    return {ConversionStatus::kRateUnavailable, 0.0};
  const double base = value / Val(rates(from_row));
  return Converted(base * Val(rates(to_row)));
}

}  // namespace

Conversion Convert(int category, int from_row, int to_row, double value,
                   const CurrencyRates& rates) {
  if (category == kCurrencyCategory) return ConvertCurrency(from_row, to_row, value, rates);
  if (category == kTemperatureCategory) return ConvertTemperature(from_row, to_row, value);
  const std::span<const UnitRow> table = FactorTable(category);
  if (table.empty()) return {};
  return ConvertByFactors(table, from_row, to_row, value);
}

}  // namespace tessarine
