// One-way analysis of variance over the ticked samples, the base of the t-test and ANOVA.
#pragma once

#include <array>
#include <cstdint>

#include "runtime/bounded_array.hpp"
#include "statistics/sample_store.hpp"

namespace tessarine::statistics {

// Selected sample numbers at positions 1 to K, in ascending order.
using Selection = BoundedArray<std::int32_t, 0, 10>;

// Walks boxes 0 to 9 and returns K, the number ticked; box i is sample i + 1.
int SelectTicked(const std::array<bool, 10>& ticked, Selection& sel);

// The F ratio with its degrees of freedom.
struct FRatio {
  std::int32_t dfa = 0;  // between, K - 1
  float dfe = 0.0f;      // error
  float f = 0.0f;
};

// Different subjects in each group. Unequal sizes go by the unweighted-means method:
// the grand mean is the mean of the means and the sizes enter by their harmonic mean.
FRatio BetweenGroups(const SampleStore& store, const Selection& sel, int k);

// The same subjects in every group, all samples as large as the first; the subject
// term is taken out of the error. The subject arrays hold 10 rows, so an 11th
// subject throws the runtime's OutOfBoundsException.
FRatio RepeatedMeasures(const SampleStore& store, const Selection& sel, int k);

}  // namespace tessarine::statistics
