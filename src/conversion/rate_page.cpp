#include "conversion/rate_page.hpp"

#include "http/server_override.hpp"
#include "runtime/text.hpp"
#include "settings/deployment.hpp"

namespace tessarine {

std::string ExtractValue(std::string_view page, std::string_view name) {
  const int p = InStr(page, name);
  return Mid(page, p + Len(name) + 2, 10);
}

CurrencyRates RatesFromPage(std::string_view page) {
  CurrencyRates rates;
  const auto rows = CurrencyUnits();
  for (int i = 0; i < kCurrencyCount; ++i) rates(i) = ExtractValue(page, rows[i].name);
  return rates;
}

std::string RatesPageURL(const Platform& platform) {
  return ApplyServerOverride("http://" + std::string(kMakerServer) + kRatesPagePath,
                             platform.server_override);
}

}  // namespace tessarine
