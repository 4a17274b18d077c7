// The currency list and its default rates. "Euro" holds dollars per euro while every
// other row holds units per dollar; the program reads them all alike.
#include "conversion/currency_table.hpp"

#include "runtime/numbers.hpp"

namespace tessarine {

namespace {
// clang-format off
constexpr CurrencyRow kRows[] = {
    {"Euro", "1.2219"},
    {"Japanese yen", "110.1"},
    {"Pound sterling", "0.5594719"},
    {"U.S. dollar", "1.0"},
    {"Argentine peso", "---"},
    {"Australian dollar", "1.452222"},
    {"Bahrain dinar", "0.376"},
    {"Botswana pula", "4.820439"},
    {"Brazilian real", "2.902"},
    {"Brunei dollar", "1.6989"},
    {"Canadian dollar", "1.2877"},
    {"Chilean peso", "617.67"},
    {"Chinese yuan", "8.2766"},
    {"Colombian peso", "2523.08"},
    {"Cyprus pound", "0.4726001"},
    {"Czech koruna", "25.968"},
    {"Danish krone", "6.086"},
    {"Hungarian forint", "204.98"},
    {"Icelandic krona", "72.03"},
    {"Indian rupee", "46.27"},
    {"Indonesian rupiah", "9290.0"},
    {"Iranian rial", "8707.477161"},
    {"Israeli new sheqel", "4.505"},
    {"Korean won", "1146.7"},
    {"Kuwaiti dinar", "0.30015"},
    {"Malaysian ringgit", "3.8"},
    {"Maltese lira", "0.3483592"},
    {"Mauritian rupee", "28.4846"},
    {"Mexican peso", "11.6005"},
    {"Nepalese rupee", "74.945"},
    {"New Zealand dollar", "1.531394"},
    {"Norwegian krone", "6.8111"},
    {"Omani rial", "0.38450"},
    {"Pakistan rupee", "58.89845"},
    {"Polish zloty", "3.6012"},
    {"Qatar riyal", "3.640"},
    {"Saudi Arabian riyal", "3.75"},
    {"Singapore dollar", "1.6989"},
    {"Slovenian tolar", "196.3775"},
    {"South African rand", "6.68"},
    {"Sri Lanka rupee", "102.9562"},
    {"Swedish krona", "7.46"},
    {"Swiss franc", "1.2611"},
    {"Thai baht", "41.573"},
    {"Trinidad & Tobago dollar", "6.257"},
    {"U.A.E. dirham", "3.6725"},
    {"Venezuelan bolivar", "1915.2"},
};
// clang-format on
static_assert(std::size(kRows) == kCurrencyCount);
}  // namespace

std::span<const CurrencyRow> CurrencyUnits() {
  return kRows;
}

CurrencyRates DefaultCurrencyRates() {
  CurrencyRates rates;
  for (int i = 0; i < kCurrencyCount; ++i) rates(i) = std::string(kRows[i].default_rate);
  return rates;
}

std::string CurrencyRateKey(int index) {
  return "CurrencyRate" + CStr(index);
}

}  // namespace tessarine
