// The euro reference rates of one day, read from the daily XML file of the
// European Central Bank (units of each currency per euro).
#pragma once

#include <map>
#include <string>
#include <variant>

namespace tessarine::server {

struct ReferenceRates {
  std::string date;                        // "YYYY-MM-DD", the day the rates are of
  std::map<std::string, double> per_euro;  // ISO code -> units per euro
};

// The rates of the file, or a message that says why the file cannot be used.
std::variant<ReferenceRates, std::string> ReadReferenceRates(const std::string& path);

// Whole days from `from` to `to`, both "YYYY-MM-DD"; nothing when one is not a date.
std::variant<int, std::string> DaysBetween(const std::string& from, const std::string& to);

}  // namespace tessarine::server
