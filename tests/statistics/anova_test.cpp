#include "statistics/anova.hpp"

#include <gtest/gtest.h>

#include "runtime/exceptions.hpp"
#include "samples_for_tests.hpp"

namespace tessarine::statistics {
namespace {

AnovaChoice Choice(int samples, bool between) {
  AnovaChoice choice;
  choice.ticked.fill(false);
  for (int i = 0; i < samples; ++i) choice.ticked[i] = true;
  choice.between = between;
  return choice;
}

// Figures recorded by tools/statistics_reference_figures.py.
struct ReferenceCase {
  const char* name;
  bool between;
  double f;
  double p;
  double tolerance;  // relative, on F; three times that on p, which magnifies its error
  const char* label;
  // F to the last bit, from the same order of 32-bit roundings restated in numpy float32.
  float exact_f;
  std::vector<std::vector<double>> samples;
};

// References: scipy 1.10.1 stats.f_oneway for the between design; for repeated
// measures the textbook sums of squares in numpy 1.24.2 (conditions, subjects,
// remainder) with stats.f.sf; for unequal sizes the unweighted-means formulas in
// 64-bit Python with stats.f.sf. All agree to 32-bit precision. Unequal sizes go by
// unweighted means by design, not by the textbook's weighted one-way ANOVA: for the
// last row scipy's f_oneway gives F 5.8000, p 0.0396 where the sheet shows 5.631, 0.0420.
TEST(Anova, AgreesWithScipy) {
  // clang-format off
  const ReferenceCase cases[] = {
      {"three_groups", true, 5.1557478368355971, 0.024205573038452707, 1e-6,
       "F (2,12) = 5.156, p = 0.0242", 0x1.49f7cep+2f,
       {{4.2, 5.1, 3.9, 6.0, 5.5}, {6.1, 5.8, 7.2, 6.6, 5.9}, {5.0, 4.4, 5.2, 6.3, 4.8}}},
      {"four_groups", true, 5.6868686868686869, 0.01167686427370671, 1e-6,
       "F (3,12) = 5.687, p = 0.0117", 0x1.6bf5a8p+2f,
       {{10, 12, 11, 14}, {13, 15, 14, 16}, {9, 11, 10, 12}, {12, 12, 13, 15}}},
      {"repeated_measures", false, 34.823529411764845, 0.00011268339122083015, 1e-5,
       "F (2,8) = 34.824, p = 0.0001", 0x1.1696bcp+5f,
       {{7, 5, 6, 8, 4}, {8, 7, 6, 9, 6}, {9, 8, 9, 11, 7}}},
      {"unequal_sizes_unweighted", true, 5.630769230769231, 0.041996708161529755, 1e-6,
       "F (2,6) = 5.631, p = 0.0420", 0x1.685e86p+2f,
       {{1, 2, 3, 4}, {3, 5, 7}, {6, 8}}},
  };
  // clang-format on
  for (const auto& c : cases) {
    Alerts alerts;
    const auto k = static_cast<int>(c.samples.size());
    const AnovaOutcome outcome = RunAnova(StoreOf(c.samples), Choice(k, c.between), alerts.Box());
    ASSERT_EQ(outcome.error, AnovaError::kNone) << c.name;
    EXPECT_NEAR(outcome.f, c.f, c.f * c.tolerance) << c.name;
    EXPECT_NEAR(outcome.p, c.p, 3 * c.p * c.tolerance) << c.name;
    EXPECT_EQ(AnovaResultText(outcome, "."), c.label) << c.name;
    EXPECT_EQ(outcome.f, c.exact_f) << c.name;
    EXPECT_TRUE(alerts.seen.empty()) << c.name;
  }
}

}  // namespace
}  // namespace tessarine::statistics
