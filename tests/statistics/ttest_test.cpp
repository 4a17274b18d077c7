#include "statistics/ttest.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "runtime/exceptions.hpp"
#include "samples_for_tests.hpp"

namespace tessarine::statistics {
namespace {

TTestChoice Choice(bool unpaired, bool one_tailed = false) {
  TTestChoice choice;
  choice.unpaired = unpaired;
  choice.one_tailed = one_tailed;
  return choice;
}

// Figures recorded by tools/statistics_reference_figures.py.
struct ReferenceCase {
  const char* name;
  bool unpaired;
  double f;  // t squared by scipy 1.10.1: stats.ttest_ind (pooled) or stats.ttest_rel
  double p;
  double tolerance;  // relative, on F; three times that on p, which magnifies its error
  const char* label;
  // F to the last bit, from the same order of 32-bit roundings restated in numpy float32.
  float exact_f;
  std::vector<std::vector<double>> samples;
};

// Unpaired, the 32-bit sums keep F and p to about seven digits, unequal sizes
// included: for two groups the unweighted means give the pooled t exactly. Paired,
// the error term comes from raw sums of squares in 32 bits, whose cancellation costs
// three to four digits: F 17.7583 against 17.7632, and the label shows t = 4.214
// where the textbook rounds 4.2146 to 4.215.
TEST(TTest, AgreesWithScipyWhereTheSumsAllowIt) {
  // clang-format off
  const ReferenceCase cases[] = {
      {"pooled_equal_sizes", true, 8.5783783783783516, 0.01903054636281306, 1e-6,
       "t (8) = 2.929, p = 0.0190", 0x1.128218p+3f,
       {{4.2, 5.1, 3.9, 6.0, 5.5}, {6.1, 5.8, 7.2, 6.6, 5.9}}},
      {"pooled_quarters", true, 11.479820627802683, 0.0069068407292817765, 1e-6,
       "t (10) = 3.388, p = 0.0069", 0x1.6f5ab8p+3f,
       {{12.5, 14.25, 11.0, 13.75, 15.5, 12.0}, {10.5, 9.75, 12.25, 11.0, 10.0, 9.5}}},
      {"pooled_unequal_sizes", true, 4.1208791208791204, 0.098111821255730064, 1e-6,
       "t (5) = 2.030, p = 0.0981", 0x1.07bc7cp+2f,
       {{1, 2, 3, 4}, {3, 5, 7}}},
      {"paired_seven", false, 17.763157894736842, 0.005594361924209367, 1e-3,
       "t (6) = 4.214, p = 0.0056", 0x1.1c21e2p+4f,
       {{72, 68, 75, 80, 66, 71, 77}, {70, 65, 74, 76, 66, 68, 75}}},
      {"paired_ten", false, 21.495867768595037, 0.0012255637610538192, 1e-3,
       "t (9) = 4.636, p = 0.0012", 0x1.57ce6ep+4f,
       {{5.1, 4.8, 6.2, 5.9, 5.0, 6.4, 5.5, 4.9, 6.1, 5.7},
        {5.6, 5.0, 6.0, 6.5, 5.4, 6.9, 5.8, 5.3, 6.6, 5.9}}},
  };
  // clang-format on
  for (const auto& c : cases) {
    Alerts alerts;
    const TTestOutcome outcome = RunTTest(StoreOf(c.samples), Choice(c.unpaired), alerts.Box());
    ASSERT_EQ(outcome.error, TTestError::kNone) << c.name;
    EXPECT_NEAR(outcome.f, c.f, c.f * c.tolerance) << c.name;
    EXPECT_NEAR(outcome.p, c.p, 3 * c.p * c.tolerance) << c.name;
    EXPECT_EQ(TTestResultText(outcome, "."), c.label) << c.name;
    EXPECT_EQ(outcome.f, c.exact_f) << c.name;
    EXPECT_TRUE(alerts.seen.empty()) << c.name;
  }
}

// Its texts on the sheet and the tape are the t-test script's, on the same samples.
TEST(TTest, OneTailedHalvesOnlyP) {
  const SampleStore store = StoreOf({{1, 2, 3}, {2, 3, 4}});
  const TTestOutcome two = RunTTest(store, Choice(true), {});
  EXPECT_EQ(two.f, 1.5f);
  const TTestOutcome one = RunTTest(store, Choice(true, true), {});
  EXPECT_EQ(one.p, static_cast<float>(two.p / 2.0));
  EXPECT_EQ(TTestResultText(one, ","), "t (4) = 1,225, p = 0,1439");
}

}  // namespace
}  // namespace tessarine::statistics
