#include "statistics/variance_analysis.hpp"

#include "statistics/descriptives.hpp"
#include "statistics/single.hpp"

namespace tessarine::statistics {

namespace {

// Every accumulator is a 32-bit float rounded at each store; the products and sums
// between stores are 64-bit. The order of the roundings decides the last digits.
using Floats = BoundedArray<float, 0, 10>;

double Wide(float x) {
  return x;
}

}  // namespace

int SelectTicked(const std::array<bool, 10>& ticked, Selection& sel) {
  int k = 0;
  for (int index = 0; index <= 9; ++index) {
    if (ticked[index]) {
      k += 1;
      sel(k) = index + 1;
    }
  }
  return k;
}

FRatio BetweenGroups(const SampleStore& store, const Selection& sel, int k) {
  Floats w;
  for (int i = 1; i <= k; ++i) {
    const double m = Mean(store, sel(i));
    for (std::int32_t j = 1; j <= store.Count(sel(i)); ++j) {
      const double x = store.Value(sel(i), j);
      const double square = (x - m) * (x - m);
      w(i) = Single(Wide(w(i)) + square);
    }
  }
  float g = 0.0f;
  for (int i = 1; i <= k; ++i) g = Single(Wide(g) + Wide(Mean(store, sel(i))));
  g = Single(Wide(g) / k);
  float h = 0.0f;
  for (int i = 1; i <= k; ++i) h = Single(Wide(h) + 1.0 / store.Count(sel(i)));
  h = Single(k / Wide(h));
  float d_sum = 0.0f;
  for (int i = 1; i <= k; ++i) {
    const float d = Single(Wide(Mean(store, sel(i))) - Wide(g));
    d_sum = Single(Wide(d_sum) + Wide(Single(Wide(d) * Wide(d))));
  }
  d_sum = Single(Wide(h) * Wide(d_sum));
  FRatio ratio;
  ratio.dfa = k - 1;
  const float between = Single(Wide(d_sum) / ratio.dfa);
  float s = 0.0f;
  for (int i = 1; i <= k; ++i) {
    s = Single(Wide(s) + Wide(w(i)));
    ratio.dfe = Single(Wide(ratio.dfe) + (store.Count(sel(i)) - 1));
  }
  const float error = Single(Wide(s) / Wide(ratio.dfe));
  ratio.f = Single(Wide(between) / Wide(error));
  return ratio;
}

FRatio RepeatedMeasures(const SampleStore& store, const Selection& sel, int k) {
  const std::int32_t n = store.Count(sel(1));
  Floats t, tt, r, rr;
  for (int i = 1; i <= k; ++i) {
    for (std::int32_t j = 1; j <= n; ++j) t(i) = Single(Wide(t(i)) + store.Value(sel(i), j));
    tt(i) = Single(Wide(t(i)) * Wide(t(i)));
  }
  float q = 0.0f;
  float g = 0.0f;
  for (std::int32_t j = 1; j <= n; ++j) {
    for (int i = 1; i <= k; ++i) {
      const double x = store.Value(sel(i), j);
      r(j) = Single(Wide(r(j)) + x);
      const double square = x * x;
      q = Single(Wide(q) + square);
      g = Single(Wide(g) + x);
    }
    rr(j) = Single(Wide(r(j)) * Wide(r(j)));
  }
  const float c = Single(Wide(Single(Wide(g) * Wide(g))) / (k * n));
  float a = 0.0f;
  for (int i = 1; i <= k; ++i) a = Single(Wide(a) + Wide(tt(i)));
  a = Single(Wide(a) / n);
  float b = 0.0f;
  for (std::int32_t j = 1; j <= n; ++j) b = Single(Wide(b) + Wide(rr(j)));
  b = Single(Wide(b) / k);
  const float conditions = Single(Wide(a) - Wide(c));
  const float s = Single(Wide(Single(Wide(Single(Wide(q) - Wide(a))) - Wide(b))) + Wide(c));
  FRatio ratio;
  ratio.dfa = k - 1;
  const float dfs = Single(n - 1);
  ratio.dfe = Single(ratio.dfa * Wide(dfs));
  const float between = Single(Wide(conditions) / ratio.dfa);
  const float error = Single(Wide(s) / Wide(ratio.dfe));
  ratio.f = Single(Wide(between) / Wide(error));
  return ratio;
}

}  // namespace tessarine::statistics
