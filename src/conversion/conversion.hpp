// The conversion arithmetic: a value from one unit of a category to another, through
// the category's base unit in two steps, each step's result held as a double.
#pragma once

#include "conversion/currency_table.hpp"

namespace tessarine {

enum class ConversionStatus {
  kConverted,        // `answer` holds the value in the target unit
  kNoAnswer,         // the category or the target row is not in the lists; no answer
  kRateUnavailable,  // a currency rate holds "--"; the tab shows its error sheet
};

struct Conversion {
  ConversionStatus status = ConversionStatus::kNoAnswer;
  double answer = 0.0;
};

// Converts `value` from row `from_row` to row `to_row` of category `category` (rows of
// the popups). A source row the list does not have counts as a base value of 0.
// Currencies divide by the source rate and multiply by the target rate, each read
// with Val; the source rate is checked for "--" first and the target's is not looked
// at when the source's is unavailable. A currency row outside 0..46 faults with
// OutOfBoundsException, as indexing the rates does.
Conversion Convert(int category, int from_row, int to_row, double value,
                   const CurrencyRates& rates);

}  // namespace tessarine
