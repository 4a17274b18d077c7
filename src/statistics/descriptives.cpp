#include "statistics/descriptives.hpp"

#include "runtime/arithmetic.hpp"
#include "runtime/bounded_array.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"
#include "statistics/single.hpp"

namespace tessarine::statistics {

float Mean(const SampleStore& store, std::int32_t sample) {
  const std::int32_t n = store.Count(sample);
  double total = 0.0;
  for (std::int32_t i = 1; i <= n; ++i) total += store.Value(sample, i);
  return Single(total / static_cast<double>(n));
}

float Sum(const SampleStore& store, std::int32_t sample) {
  const std::int32_t n = store.Count(sample);
  float total = 0.0f;
  for (std::int32_t i = 1; i <= n; ++i) total = Single(total + store.Value(sample, i));
  return total;
}

float Variance(const SampleStore& store, std::int32_t sample) {
  const std::int32_t n = store.Count(sample);
  // The mean is the same at every value, so it is taken once.
  const double m = Mean(store, sample);
  float squares = 0.0f;
  for (std::int32_t i = 1; i <= n; ++i) {
    const double x = store.Value(sample, i);
    const double product = (x - m) * (x - m);
    squares = Single(squares + product);
  }
  return Single(squares / static_cast<double>(n - 1));
}

MinMaxMed CalculateMinMaxMed(const SampleStore& store, std::int32_t sample) {
  BoundedArray<float, 0, SampleStore::kLastPosition> a;
  const std::int32_t n = store.Count(sample);
  for (std::int32_t i = 1; i <= n; ++i) a(i) = Single(store.Value(sample, i));
  // Full passes without an early exit, as the sheet has always sorted.
  for (std::int32_t pass = 1; pass <= n; ++pass) {
    for (std::int32_t j = 1; j <= n - 1; ++j) {
      if (a(j + 1) < a(j)) {
        const float t = a(j);
        a(j) = a(j + 1);
        a(j + 1) = t;
      }
    }
  }
  MinMaxMed result;
  result.min = a(1);
  result.max = a(n);
  const double h = n / 2.0;
  if (Round(h) == h) {
    // The middle pair's sum is rounded to 32 bits before it is halved.
    const float pair = Single(static_cast<double>(a(n / 2 + 1)) + a(n / 2));
    result.med = Single(pair / 2.0);
  } else {
    result.med = a((n + 1) / 2);
  }
  return result;
}

std::string DescriptivesText(const SampleStore& store, std::int32_t sample,
                             std::int32_t main_sample) {
  const std::int32_t n = store.Count(sample);
  if (n <= 0) return "";
  const std::string cr = Chr(13);
  std::string text = "N=" + Str(n) + cr;
  const MinMaxMed mmm = CalculateMinMaxMed(store, main_sample);
  text += "Min=" + Str(mmm.min) + cr;
  text += "Max=" + Str(mmm.max) + cr;
  text += "Mean=" + Str(Mean(store, sample)) + cr;
  text += "Med=" + Str(mmm.med) + cr;
  const float variance = Variance(store, sample);
  text += "Var=" + Str(variance) + cr;
  text += "Sum=" + Str(Sum(store, sample)) + cr;
  // The deviations are shown at 64 bits, from the 32-bit variance.
  text += "SD=" + Str(Sqrt(variance)) + cr;
  text += "SEM=" + Str(Sqrt(variance) / Sqrt(n)) + cr;
  return text;
}

}  // namespace tessarine::statistics
