// The generator on the real file of 28 June 2024: hand-worked rows, every row of
// the calculator's list found where the calculator looks, and the files it refuses.
#include "pages.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <variant>

#include "conversion/rate_page.hpp"
#include "rate_rows.hpp"
#include "reference_rates.hpp"
#include "runtime/text.hpp"

namespace tessarine::server {
namespace {

ReferenceRates Snapshot() {
  auto read = ReadReferenceRates(SNAPSHOT);
  EXPECT_TRUE(std::holds_alternative<ReferenceRates>(read));
  return std::get<ReferenceRates>(read);
}

TEST(PagesTest, HandWorkedRowsOfTheSnapshot) {
  const std::vector<RateRow> rows = RateRows(Snapshot());
  ASSERT_EQ(rows.size(), static_cast<std::size_t>(kCurrencyCount));
  // Units per dollar = units per euro / dollars per euro (1.0705 that day).
  const std::pair<int, const char*> expected[] = {
      {0, "1.0705"},     // Euro: dollars per euro as published
      {1, "160.6165"},   // 171.94 / 1.0705 = 160.616534...
      {2, "0.79064"},    // 0.84638 / 1.0705 = 0.7906399
      {3, "1.0"},        // U.S. dollar
      {4, "--"},         // Argentine peso: no official source
      {6, "0.376"},      // Bahrain dinar: dollar peg
      {9, "1.355722"},   // Brunei dollar at par with 1.4513 / 1.0705
      {14, "0.54673"},   // Cyprus pound: 0.585274 per euro / 1.0705 = 0.5467296
      {20, "16335.55"},  // 17487.21 / 1.0705
      {29, "133.3949"},  // Nepalese rupee: 1.6 x 89.2495 / 1.0705 = 133.394862
      {38, "223.858"},   // Slovenian tolar: 239.640 / 1.0705 = 223.85801
      {42, "0.899953"},  // 0.9634 / 1.0705
      {45, "3.6725"},    // U.A.E. dirham: dollar peg
  };
  for (const auto& [index, rate] : expected) EXPECT_EQ(rows[index].rate, rate) << rows[index].name;
}

TEST(PagesTest, CalculatorFindsEveryRowWhereItLooks) {
  const std::vector<RateRow> rows = RateRows(Snapshot());
  const std::string page = RatesPage(rows, "2024-06-28");
  const CurrencyRates read = RatesFromPage(page);
  const auto units = CurrencyUnits();
  for (int i = 0; i < kCurrencyCount; ++i) {
    SCOPED_TRACE(rows[i].name);
    EXPECT_EQ(rows[i].name, units[i].name);
    // The first occurrence of the name opens its own row, and the rate reads back.
    EXPECT_EQ(Mid(page, InStr(page, rows[i].name) - 1, 1), "\n");
    EXPECT_EQ(Trim(read(i)), rows[i].rate);
    EXPECT_EQ(Len(read(i)), 10);
  }
  EXPECT_NE(InStr(page, "2024-06-28"), 0);
}

class RefusalTest : public ::testing::Test {
 protected:
  std::string File(const std::string& text) {
    const std::string path = ::testing::TempDir() + "/rates" + std::to_string(++files_) + ".xml";
    std::ofstream(path) << text;
    return path;
  }
  int files_ = 0;
};

// A missing or broken file, and the version page, are the end-to-end server test's.
TEST_F(RefusalTest, WrongFilesAreRefusedWithTheirReason) {
  const std::string day =
      "<gesmes:Envelope xmlns:gesmes='g'><Cube><Cube time='2024-06-28'>%</Cube></Cube>"
      "</gesmes:Envelope>";
  const auto with = [&](const std::string& cubes) {
    std::string text = day;
    return text.replace(text.find('%'), 1, cubes);
  };
  struct Case {
    const char* name;
    std::string path;
    const char* reason;
  };
  const std::vector<Case> cases = {
      {"no USD rate", File(with("<Cube currency='JPY' rate='171.94'/>")), "no USD rate"},
      {"no date", File("<a><Cube><Cube currency='USD' rate='1'/></Cube></a>"), "no dated rates"},
      {"rate not a number", File(with("<Cube currency='USD' rate='1,07'/>")), "not a positive"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    auto read = ReadReferenceRates(c.path);
    ASSERT_TRUE(std::holds_alternative<std::string>(read));
    EXPECT_NE(std::get<std::string>(read).find(c.reason), std::string::npos)
        << std::get<std::string>(read);
  }
}

TEST(DaysTest, AgeOfTheFile) {
  EXPECT_EQ(std::get<int>(DaysBetween("2024-06-28", "2024-07-01")), 3);
  EXPECT_TRUE(std::holds_alternative<std::string>(DaysBetween("2024-02-30", "2024-03-01")));
}

}  // namespace
}  // namespace tessarine::server
