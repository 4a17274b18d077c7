// tessarine-pages: turns the day's euro reference-rate file into the calculator's
// exchange-rate page and writes its version page, into a folder a web server serves.
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <string>
#include <variant>

#include "pages.hpp"
#include "rate_rows.hpp"
#include "reference_rates.hpp"

namespace {

constexpr char kUsage[] =
    "usage: tessarine-pages --input FILE --output FOLDER [--version X.Y.Z]\n"
    "                       [--max-age-days N] [--today YYYY-MM-DD]\n"
    "Writes FOLDER/tessarine/exchange_rates.html and FOLDER/tessarine/tsrn_version.html.\n"
    "A file older than N days (default 7; 0: any age) is refused.\n";

int Fail(const std::string& message) {
  std::cerr << "tessarine-pages: " << message << "; the pages stay as they were\n";
  return 1;
}

std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  gmtime_r(&now, &utc);
  char text[16];
  std::strftime(text, sizeof text, "%Y-%m-%d", &utc);
  return text;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace tessarine::server;
  std::string input, output, version = "4.5.2", today = Today();
  int max_age = 7;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (i + 1 >= argc) return std::cerr << kUsage, 2;
    const std::string value = argv[++i];
    if (arg == "--input")
      input = value;
    else if (arg == "--output")
      output = value;
    else if (arg == "--version")
      version = value;
    else if (arg == "--today")
      today = value;
    else if (arg == "--max-age-days")
      max_age = std::atoi(value.c_str());
    else
      return std::cerr << kUsage, 2;
  }
  if (input.empty() || output.empty() || version.size() != 5) return std::cerr << kUsage, 2;

  auto read = ReadReferenceRates(input);
  if (auto* message = std::get_if<std::string>(&read)) return Fail(*message);
  const ReferenceRates& rates = std::get<ReferenceRates>(read);
  if (max_age > 0) {
    const auto age = DaysBetween(rates.date, today);
    if (auto* message = std::get_if<std::string>(&age)) return Fail(*message);
    if (std::get<int>(age) > max_age)
      return Fail(input + " is stale: its rates are of " + rates.date + ", " +
                  std::to_string(std::get<int>(age)) + " days before " + today);
  }
  const std::string written =
      WritePages(output, {{kRatesPageName, RatesPage(RateRows(rates), rates.date)},
                          {kVersionPageName, VersionPage(version)}});
  if (!written.empty()) return Fail(written);
  std::cout << "Rates of " << rates.date << " written to " << output << "\n";
  return 0;
}
