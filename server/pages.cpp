#include "pages.hpp"

#include <filesystem>
#include <fstream>

namespace tessarine::server {

namespace fs = std::filesystem;

namespace {
constexpr char kHead[] =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>";
}  // namespace

std::string RatesPage(const std::vector<RateRow>& rows, const std::string& date) {
  std::string page = kHead;
  page += "Tessarine: exchange rates</title>\n</head>\n<body>\n<h1>Exchange rates of ";
  page += date + "</h1>\n<pre>\n";
  // A name, two separator characters and the rate in ten. The bare "&" of one name
  // stays as it is: followed by a blank it is valid HTML, and the calculator
  // searches for the name letter for letter.
  for (const RateRow& row : rows) {
    std::string rate = row.rate;
    rate.resize(10, ' ');
    page += row.name + ": " + rate + "\n";
  }
  page += "</pre>\n<p>Rates of " + date +
          ": units per U.S. dollar; the first row, U.S. dollars per euro. Sources: the euro "
          "reference rates of the European Central Bank, the official pegs of the issuing "
          "central banks and the fixed conversion rates of the currencies the euro replaced. "
          "\"--\": no official rate.</p>\n</body>\n</html>\n";
  return page;
}

std::string VersionPage(const std::string& version) {
  return std::string(kHead) + "Tessarine: latest version</title>\n</head>\n<body>\n<p>Tsrn " +
         version + "</p>\n<p>The latest version of the calculator.</p>\n</body>\n</html>\n";
}

std::string WritePages(const std::string& folder, const std::vector<Page>& pages) {
  std::error_code error;
  std::vector<std::pair<fs::path, fs::path>> moves;
  for (const Page& page : pages) {
    const fs::path target = fs::path(folder) / page.name;
    fs::create_directories(target.parent_path(), error);
    if (error) return "cannot make " + target.parent_path().string() + ": " + error.message();
    fs::path fresh = target;
    fresh += ".new";
    std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
    out << page.text;
    out.close();
    if (!out) return "cannot write " + fresh.string();
    moves.emplace_back(fresh, target);
  }
  for (const auto& [fresh, target] : moves) {
    fs::rename(fresh, target, error);
    if (error) return "cannot replace " + target.string() + ": " + error.message();
  }
  return "";
}

}  // namespace tessarine::server
