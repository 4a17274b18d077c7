#include "statistics/descriptives.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "runtime/exceptions.hpp"
#include "runtime/text.hpp"
#include "samples_for_tests.hpp"

namespace tessarine::statistics {
namespace {

std::string Lines(std::initializer_list<std::string> lines) {
  std::string text;
  for (const auto& line : lines) text += line + Chr(13);
  return text;
}

struct DescriptivesCase {
  const char* name;
  std::vector<double> values;
  std::string text;
};

// Expected figures worked out in 32-bit floats with numpy (tools/statistics_reference_figures.py),
// in the same order of rounding; the values are picked so a 64-bit accumulator or a missing store
// shows.
TEST(Descriptives, SheetTextPerSample) {
  const DescriptivesCase cases[] = {
      {"sum_loses_what_mean_keeps",
       {1e8, 1, -1e8, 0.1},
       Lines({"N=4", "Min=-100000000", "Max=100000000", "Mean=0.275", "Med=0.55",
              "Var=6666667000000000", "Sum=0.1", "SD=81649660.30139452", "SEM=40824830.15069726"})},
      {"tenths_round_in_32_bits",
       {0.1, 0.2, 0.3},
       Lines({"N=3", "Min=0.1", "Max=0.3", "Mean=0.2", "Med=0.2", "Var=0.01", "Sum=0.6",
              "SD=0.0999999988824129", "SEM=0.057735026273723365"})},
      {"ties_odd_count",
       {2.5, -1.25, 3.75, 3.75, 0.1},
       Lines({"N=5", "Min=-1.25", "Max=3.75", "Mean=1.77", "Med=2.5", "Var=5.07075", "Sum=8.85",
              "SD=2.251832639543008", "SEM=1.0070501711941895"})},
      // Beyond the float range the statistics overflow; below it they flush to zero.
      {"huge_overflows",
       {1e39, 2},
       Lines({"N=2", "Min=2", "Max=INF", "Mean=INF", "Med=INF", "Var=INF", "Sum=INF", "SD=INF",
              "SEM=INF"})},
      {"pair_sum_overflows_before_halving",
       {3e38, 3e38},
       Lines({"N=2", "Min=300000000000000000000000000000000000000",
              "Max=300000000000000000000000000000000000000",
              "Mean=300000000000000000000000000000000000000", "Med=INF", "Var=INF", "Sum=INF",
              "SD=INF", "SEM=INF"})},
      {"tiny_flushes_to_zero",
       {1e-46, 0},
       Lines({"N=2", "Min=0", "Max=0", "Mean=0", "Med=0", "Var=0", "Sum=0", "SD=0", "SEM=0"})},
  };
  for (const auto& c : cases) {
    const SampleStore store = StoreOf({c.values});
    EXPECT_EQ(DescriptivesText(store, 1, 1), c.text) << c.name;
  }
}

TEST(Descriptives, SortHoldsAFullSample) {
  SampleStore store;
  for (int i = 255; i >= 1; --i) store.Input(1, std::to_string(i));
  const MinMaxMed full = CalculateMinMaxMed(store, 1);
  EXPECT_EQ(full.min, 1.0f);
  EXPECT_EQ(full.max, 255.0f);
  EXPECT_EQ(full.med, 128.0f);
  EXPECT_THROW(store.Input(1, "0"), OutOfBoundsException);
  EXPECT_THROW(CalculateMinMaxMed(store, 1), OutOfBoundsException);
}

}  // namespace
}  // namespace tessarine::statistics
