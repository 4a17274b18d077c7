// The exchange-rate page as the program reads it: plain text searched for each
// currency's name, with the rate in the ten characters after two skipped ones.
#pragma once

#include <string>
#include <string_view>

#include "conversion/currency_table.hpp"
#include "runtime/platform/platform.hpp"

namespace tessarine {

inline constexpr char kRatesPagePath[] = "/tessarine/exchange_rates.html";

// The ten characters after the name and two more. The position is not checked: a
// name the page lacks gives the ten characters from Len(name) + 2 of the page.
std::string ExtractValue(std::string_view page, std::string_view name);

// All 47 rates of a page, in the order of the currency list.
CurrencyRates RatesFromPage(std::string_view page);

// The page's address on the maker's server, or on the server that replaces it.
std::string RatesPageURL(const Platform& platform);

}  // namespace tessarine
