#include "fractions/fraction_conversion.hpp"

#include <gtest/gtest.h>

#include <string>

#include "literal_reduce.hpp"

namespace tessarine {
namespace {

// -2 1/4, a zero bottom under -2 1, 2.5 and 0.333333 are the conversions script's.
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
      {"a mixed number", "1", "1", "2", "1.5"},
      {"a zero whole part", "0", "1", "4", "0.25"},
      {"a minus that cuts to a zero whole part", "-0.5", "1", "4", "-0.25"},
      {"a zero bottom", "", "3", "0", "Undefined"},
      {"an empty bottom", "2", "3", "", "Undefined"},
      {"a zero top gives no answer", "", "0", "5", ""},
      {"a negative top gives no answer", "", "-1", "2", ""},
      {"a negative bottom gives no answer", "", "1", "-2", ""},
      {"a third in all its digits", "", "1", "3", "0.3333333333333333"},
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
      {"a negative mixed number", "-2.5", "-2", "1", "2"},
      {"a negative fraction loses its minus", "-0.5", "0", "1", "2"},
      {"a whole number stands as typed", "-5", "-5", "0", "1"},
      {"below the resolution stands as typed", "3.000004", "3.000004", "0", "1"},
      {"one step", "0.00001", "0", "1", "100000"},
      {"rounds up to a whole", "0.999999", "0", "1", "1"},
      {"an empty text changes nothing", "", "stale", "stale", "stale"},
      {"the smallest step lost to the float", "5.00001", "5.00001", "0", "1"},
      {"half a step", "0.000005", "0.000005", "0", "1"},
      {"a tie rounds away from zero", "0.000025", "0", "3", "100000"},
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

}  // namespace
}  // namespace tessarine
