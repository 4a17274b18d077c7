// The currencies of the "Currency" category, their rates as text, and where the rates
// live in the preferences file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "runtime/bounded_array.hpp"

namespace tessarine {

inline constexpr int kCurrencyCount = 47;

// Rates as the page or the file gave them, index = row of the currency list. A rate
// is read as units of that currency per U.S. dollar, and one holding "--" is
// unavailable. Indexing outside 0..46 faults as the runtime's arrays do.
using CurrencyRates = BoundedArray<std::string, 0, kCurrencyCount - 1>;

// One row of the currency list: its text and the rate in force before any update.
struct CurrencyRow {
  std::string_view name;
  std::string_view default_rate;
};

std::span<const CurrencyRow> CurrencyUnits();
CurrencyRates DefaultCurrencyRates();

// Preferences keys (string values, stored encrypted like every key of the program).
std::string CurrencyRateKey(int index);  // "CurrencyRate0" .. "CurrencyRate46"
inline constexpr char kCurrencyUpdateTimeAndDateKey[] = "CurrencyUpdateTimeAndDate";
inline constexpr char kCurrencyUpdateDateKey[] = "CurrencyUpdateDate";
inline constexpr char kNeverUpdated[] = "NEVER";

// The rates from the store, each key's default being the table's rate. `Store` is
// anything with GetStringValue(key, fallback, encrypted), such as PrefsModule.
template <typename Store>
CurrencyRates ReadCurrencyRates(Store& prefs) {
  CurrencyRates rates;
  const auto rows = CurrencyUnits();
  for (int i = 0; i < kCurrencyCount; ++i)
    rates(i) = prefs.GetStringValue(CurrencyRateKey(i), std::string(rows[i].default_rate), true);
  return rates;
}

// Stores all 47 rates in index order.
template <typename Store>
void WriteCurrencyRates(Store& prefs, const CurrencyRates& rates) {
  for (int i = 0; i < kCurrencyCount; ++i) prefs.SetStringValue(CurrencyRateKey(i), rates(i), true);
}

}  // namespace tessarine
