// The "Last updated:" line under the currency lists, and whether it shows in red.
#pragma once

#include <string>
#include <string_view>

#include "runtime/date.hpp"

namespace tessarine {

struct RatesAgeLine {
  std::string text;  // CurrencyConversionInfo.Text
  bool red = false;  // TextColor 255, 0, 0; otherwise the label keeps its colour
};

// "Last updated: " and the stored time and date of the last update ("NEVER" at first).
std::string LastUpdatedText(std::string_view time_and_date);

// Whether the rates are not today's: the stored update date differs, as text, from
// today's short date.
bool RatesAreStale(std::string_view update_date, const Date& today);

// The line as the window sets it at open.
RatesAgeLine RatesAgeAtOpen(std::string_view time_and_date, std::string_view update_date,
                            const Date& today);

}  // namespace tessarine
