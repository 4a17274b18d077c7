// The two pages the calculator fetches, as small HTML pages a person can read too,
// and their writing beside the old ones so that a failed run leaves those in place.
#pragma once

#include <string>
#include <vector>

#include "rate_rows.hpp"

namespace tessarine::server {

inline constexpr char kRatesPageName[] = "tessarine/exchange_rates.html";
inline constexpr char kVersionPageName[] = "tessarine/tsrn_version.html";

// The rows come first in the body, before any text that could hold a currency's name.
std::string RatesPage(const std::vector<RateRow>& rows, const std::string& date);
// "Tsrn", a blank and the version the calculator compares with its own.
std::string VersionPage(const std::string& version);

struct Page {
  std::string name;  // relative to the folder
  std::string text;
};

// Writes every page to a new file beside its old one, then renames them all into
// place; an empty answer means success, else the message of what failed.
std::string WritePages(const std::string& folder, const std::vector<Page>& pages);

}  // namespace tessarine::server
