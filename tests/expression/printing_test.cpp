// The printed form of numbers: the runtime's Str, fixed notation, and read back by CDbl.
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>

#include "run_script.hpp"
#include "runtime/numbers.hpp"

namespace tessarine::expression {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Numbers, TypedFormula,
    testing::Values(PrintCase{"Whole", "2.0", "2"}, PrintCase{"Third", "1/3", "0.3333333333333333"},
                    PrintCase{"NegativeZero", "-0", "0"}, PrintCase{"Small", "1e-7", "0.0000001"},
                    PrintCase{"Large", "1e20", "100000000000000000000"},
                    PrintCase{"ShortestDigitsPadded", "123456789012345678", "123456789012345680"},
                    PrintCase{"Overflow", "1e308*10", "INF"},
                    PrintCase{"NegativeOverflow", "-1e308*10", "-INF"},
                    PrintCase{"LiteralTooLarge", "1e400", "INF"}),
    [](const testing::TestParamInfo<PrintCase>& info) { return std::string(info.param.name); });

TEST(PrintedForm, ReadsBackExactlyThroughCDbl) {
  struct Row {
    const char* typed;
    double value;
  };
  const Row rows[] = {{"1/3", 1.0 / 3},          {"0.1+0.2", 0.1 + 0.2},
                      {"-2/3", -2.0 / 3},        {"1e300*7", 7e300},
                      {"5e-324", 5e-324},        {"1e-300/3", 1e-300 / 3},
                      {"2^0.5", std::sqrt(2.0)}, {"123456789.123456789", 123456789.123456789}};
  for (const Row& r : rows) {
    const std::string printed = ValueOf(r.typed);
    EXPECT_EQ(printed.find('e'), std::string::npos) << r.typed;
    EXPECT_EQ(CDbl(printed, "."), r.value) << r.typed << " printed " << printed;
  }
}

}  // namespace
}  // namespace tessarine::expression
