#include "statistics/stats_page.hpp"

#include <gtest/gtest.h>

namespace tessarine::statistics {
namespace {

TEST(StatsPage, NumberFieldsTakeDigitsSeparatorsAndControlKeys) {
  for (const char* key : {"0", "7", ",", ".", "\x08", "\t", "\x1c"}) {
    EXPECT_FALSE(NumberFieldSwallowsKey(key)) << key;
  }
  for (const char* key : {"-", "a", " ", "e", "+", "\xc3\xa9"}) {
    EXPECT_TRUE(NumberFieldSwallowsKey(key)) << key;
  }
}

TEST(StatsPage, ComputationChoice) {
  EXPECT_EQ(ChooseComputation(0).sheet, StatsSheet::kDescriptives);
  EXPECT_EQ(ChooseComputation(1).spoken, "Anova");
  EXPECT_EQ(ChooseComputation(2).spoken, "teetest");
  EXPECT_EQ(ChooseComputation(2).sheet, StatsSheet::kTTest);
  EXPECT_EQ(ChooseComputation(3).sheet, StatsSheet::kNone);
  EXPECT_EQ(ChooseComputation(-1).spoken, "");
}

}  // namespace
}  // namespace tessarine::statistics
