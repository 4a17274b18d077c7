// The 47 rows of the exchange-rate page: each currency of the calculator's list
// with its rate as the calculator reads it (units per U.S. dollar; U.S. dollars
// per euro on the Euro row), or "--" where no source gives one.
#pragma once

#include <string>
#include <vector>

#include "reference_rates.hpp"

namespace tessarine::server {

struct RateRow {
  std::string name;  // the calculator's text of the row, letter for letter
  std::string rate;  // at most ten characters
};

std::vector<RateRow> RateRows(const ReferenceRates& rates);

// A rate in at most ten characters, about seven significant digits, no exponent.
std::string RateText(double value);

}  // namespace tessarine::server
