#include "rate_rows.hpp"

#include <cmath>
#include <cstdio>
#include <optional>

#include "conversion/currency_table.hpp"

namespace tessarine::server {

namespace {

// Where a row's rate comes from, beside the daily reference file.
struct Source {
  enum Kind {
    kDollarsPerEuro,  // the Euro row
    kReference,       // code: the daily reference rate
    kDollarPeg,       // factor units per U.S. dollar, fixed by the issuing central bank
    kPeggedTo,        // factor units per unit of `code`, itself a reference currency
    kEuroFixed,       // factor units per euro, fixed when the euro replaced the currency
    kNone,            // no official source: "--"
  } kind;
  const char* code = "";
  double factor = 0;
};

// Index = row of the calculator's currency list.
// Dollar pegs: Central Bank of Bahrain (0.376), Central Bank of Oman (0.3845), Qatar
// Central Bank (3.64), Saudi Central Bank (3.75), Central Bank of the U.A.E. (3.6725).
// Brunei dollar: at par with the Singapore dollar (Currency Interchangeability
// Agreement of 1967). Nepalese rupee: 1.6 per Indian rupee (Nepal Rastra Bank).
// Euro conversion rates: Council Regulations (EC) 1135/2007 (Cyprus pound 0.585274,
// Maltese lira 0.429300) and 1086/2006 (Slovenian tolar 239.640).
// The rest float or follow baskets no official source publishes daily.
const Source kSources[] = {
    {Source::kDollarsPerEuro, "USD"},  // Euro
    {Source::kReference, "JPY"},
    {Source::kReference, "GBP"},
    {Source::kDollarPeg, "", 1.0},  // U.S. dollar
    {Source::kNone},                // Argentine peso
    {Source::kReference, "AUD"},
    {Source::kDollarPeg, "", 0.376},  // Bahrain dinar
    {Source::kNone},                  // Botswana pula
    {Source::kReference, "BRL"},
    {Source::kPeggedTo, "SGD", 1.0},  // Brunei dollar
    {Source::kReference, "CAD"},
    {Source::kNone},  // Chilean peso
    {Source::kReference, "CNY"},
    {Source::kNone},                     // Colombian peso
    {Source::kEuroFixed, "", 0.585274},  // Cyprus pound
    {Source::kReference, "CZK"},
    {Source::kReference, "DKK"},
    {Source::kReference, "HUF"},
    {Source::kReference, "ISK"},
    {Source::kReference, "INR"},
    {Source::kReference, "IDR"},
    {Source::kNone},  // Iranian rial
    {Source::kReference, "ILS"},
    {Source::kReference, "KRW"},
    {Source::kNone},  // Kuwaiti dinar
    {Source::kReference, "MYR"},
    {Source::kEuroFixed, "", 0.4293},  // Maltese lira
    {Source::kNone},                   // Mauritian rupee
    {Source::kReference, "MXN"},
    {Source::kPeggedTo, "INR", 1.6},  // Nepalese rupee
    {Source::kReference, "NZD"},
    {Source::kReference, "NOK"},
    {Source::kDollarPeg, "", 0.3845},  // Omani rial
    {Source::kNone},                   // Pakistan rupee
    {Source::kReference, "PLN"},
    {Source::kDollarPeg, "", 3.64},  // Qatar riyal
    {Source::kDollarPeg, "", 3.75},  // Saudi Arabian riyal
    {Source::kReference, "SGD"},
    {Source::kEuroFixed, "", 239.64},  // Slovenian tolar
    {Source::kReference, "ZAR"},
    {Source::kNone},  // Sri Lanka rupee
    {Source::kReference, "SEK"},
    {Source::kReference, "CHF"},
    {Source::kReference, "THB"},
    {Source::kNone},                   // Trinidad & Tobago dollar
    {Source::kDollarPeg, "", 3.6725},  // U.A.E. dirham
    {Source::kNone},                   // Venezuelan bolivar
};
static_assert(std::size(kSources) == kCurrencyCount);

std::optional<double> PerEuro(const ReferenceRates& rates, const char* code) {
  const auto found = rates.per_euro.find(code);
  if (found == rates.per_euro.end()) return std::nullopt;
  return found->second;
}

std::optional<double> Rate(const ReferenceRates& rates, const Source& source) {
  const double usd = rates.per_euro.at("USD");
  switch (source.kind) {
    case Source::kDollarsPerEuro:
      return usd;
    case Source::kReference:
      if (auto rate = PerEuro(rates, source.code)) return *rate / usd;
      return std::nullopt;
    case Source::kDollarPeg:
      return source.factor;
    case Source::kPeggedTo:
      if (auto rate = PerEuro(rates, source.code)) return source.factor * *rate / usd;
      return std::nullopt;
    case Source::kEuroFixed:
      return source.factor / usd;
    case Source::kNone:
      break;
  }
  return std::nullopt;
}

}  // namespace

std::string RateText(double value) {
  // Seven significant digits while they fit; the digits before the point always stay.
  int whole = 1;
  for (double v = std::fabs(value); v >= 10; v /= 10) ++whole;
  for (int decimals = std::max(0, 7 - whole); decimals >= 0; --decimals) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    std::string out = text;
    if (out.find('.') != std::string::npos) {
      while (out.back() == '0') out.pop_back();
      if (out.back() == '.') out += '0';
    }
    if (out.size() <= 10) return out;
  }
  return "--";
}

std::vector<RateRow> RateRows(const ReferenceRates& rates) {
  std::vector<RateRow> rows;
  const auto units = CurrencyUnits();
  for (int i = 0; i < kCurrencyCount; ++i) {
    const auto rate = Rate(rates, kSources[i]);
    rows.push_back({std::string(units[i].name), rate ? RateText(*rate) : "--"});
  }
  return rows;
}

}  // namespace tessarine::server
