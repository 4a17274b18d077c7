#include "fractions/fraction_conversion.hpp"

#include <gtest/gtest.h>

#include <string>

#include "literal_reduce.hpp"

namespace tessarine {
namespace {

TEST(FractionToDecimalTest, Answers) {
  struct Row {
    const char* name;
    const char* main;
    const char* topper;
    const char* bottomer;
    const char* answerd;
    const char* separator = ".";
  };
  const Row rows[] = {
      {"one and a half", "1", "1", "2", "1.5"},
      {"a quarter with a zero whole part", "0", "1", "4", "0.25"},
      {"a quarter with no whole part", "", "1", "4", "0.25"},
      {"a negative whole part", "-2", "1", "4", "-2.25"},
      {"a minus that cuts to a zero whole part", "-0.5", "1", "4", "-0.25"},
      {"a third in all its digits", "", "1", "3", "0.3333333333333333"},
      {"zero bottom", "", "3", "0", "Undefined"},
      {"zero bottom under a whole part", "2", "3", "0", "Undefined"},
      {"empty bottom", "", "3", "", "Undefined"},
      {"zero top", "", "0", "5", ""},
      {"negative top", "", "-1", "2", ""},
      {"negative bottom", "", "1", "-2", ""},
      {"a whole part alone", "5", "", "4", ""},
      {"a bottom of 0.5 is 0 as an integer", "2", "1", "0.5", "INF"},
      {"a whole part beyond 32 bits saturates", "2147483648", "1", "2", "2147483647.5"},
      {"a comma system reads the whole part with its comma", "-0,5", "1", "2", "-0.5", ","},
  };
  for (const Row& row : rows) {
    FractionToDecimalFields f{row.main, row.topper, row.bottomer, "stale"};
    ConvertFractionToDecimalButtonAction(f, row.separator);
    EXPECT_EQ(f.answerd, row.answerd) << row.name;
    EXPECT_EQ(f.main, row.main) << row.name;
  }
}

TEST(DecimalToFractionTest, Answers) {
  struct Row {
    const char* name;
    const char* dec;
    const char* main2;
    const char* topnum;
    const char* bnum;
    const char* separator = ".";
  };
  const Row rows[] = {
      {"a quarter", "0.25", "0", "1", "4"},
      {"two and a half", "2.5", "2", "1", "2"},
      {"minus two and a half", "-2.5", "-2", "1", "2"},
      {"minus a half loses its minus", "-0.5", "0", "1", "2"},
      {"a whole number", "5", "5", "0", "1"},
      {"a negative whole number", "-5", "-5", "0", "1"},
      {"under the resolution", "3.000004", "3.000004", "0", "1"},
      {"rounds up to a whole one", "0.999999", "0", "1", "1"},
      {"the smallest step", "0.00001", "0", "1", "100000"},
      {"the smallest step lost to the float", "5.00001", "5.00001", "0", "1"},
      {"half a step", "0.000005", "0.000005", "0", "1"},
      {"a tie rounds away from zero", "0.000025", "0", "3", "100000"},
      {"six digits", "7.654321", "7", "8179", "12500"},
      {"beyond 32 bits", "1e10", "2147483647", "785251635300000", "100000"},
      {"a comma system's whole part", "-2,5", "-2,5", "0", "1", ","},
  };
  for (const Row& row : rows) {
    DecimalToFractionFields f{row.dec, "stale", "stale", "stale"};
    RoundedBevelButton7Action(f, row.separator);
    EXPECT_EQ(f.main2, row.main2) << row.name;
    EXPECT_EQ(f.topnum, row.topnum) << row.name;
    EXPECT_EQ(f.bnum, row.bnum) << row.name;
  }
}

TEST(DecimalToFractionTest, EmptyDecimalLeavesTheResult) {
  DecimalToFractionFields f{"", "1", "2", "3"};
  RoundedBevelButton7Action(f, ".");
  EXPECT_EQ(f.main2, "1");
  EXPECT_EQ(f.topnum, "2");
  EXPECT_EQ(f.bnum, "3");
}

// Every fraction in hundred-thousandths that the page can make, reduced as the loop does.
TEST(DecimalToFractionTest, EveryStepReducesAsTheLoop) {
  for (int k = 1; k < 100000; k += 37) {
    std::string top = std::to_string(k), bottom = "100000";
    DecimalToFractionFields f{"0." + std::string(5 - top.size(), '0') + top, "", "", ""};
    RoundedBevelButton7Action(f, ".");
    literal::LiteralReduce(top, bottom);
    EXPECT_EQ(f.topnum, top) << f.dec;
    EXPECT_EQ(f.bnum, bottom) << f.dec;
  }
}

TEST(FractionConversionTest, ClearEmptiesItsPageOnly) {
  FractionToDecimalFields a{"1", "2", "3", "4"};
  ClearFractionToDecimalButtonAction(a);
  EXPECT_EQ(a.main + a.topper + a.bottomer + a.answerd, "");
  DecimalToFractionFields b{"1", "2", "3", "4"};
  RoundedBevelButton8Action(b);
  EXPECT_EQ(b.dec + b.main2 + b.topnum + b.bnum, "");
}

}  // namespace
}  // namespace tessarine
