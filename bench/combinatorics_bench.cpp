// C(n,k) against a bare loop of the same number of Log calls: the loops of the
// combinatorics keys should cost little beyond the logarithms themselves, with the
// abort chord polled and the progress bar kept at every round.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <vector>

#include "bench_calculator.hpp"
#include "runtime/arithmetic.hpp"

namespace tessarine {
namespace {

constexpr double kN = 1e7;  // n - k of 10^7 with k = 0: 2 x 10^7 logarithms in all

void BM_CombinationsLoop(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  for (auto _ : state) {
    w.Stored2 = kN;
    w.Result = 0;
    benchmark::DoNotOptimize(w.ComputeCombinations());
  }
}
BENCHMARK(BM_CombinationsLoop)->Unit(benchmark::kMillisecond);

double BareLogLoops(double n) {
  double a = 0;
  for (std::int64_t i = 1; i <= n; ++i) a += Log(static_cast<double>(i));
  double b = 0;
  for (std::int64_t j = 1; j <= n; ++j) b += Log(static_cast<double>(j));
  return Round(Exp(a - b));
}

void BM_BareLogLoop(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(BareLogLoops(kN));
}
BENCHMARK(BM_BareLogLoop)->Unit(benchmark::kMillisecond);

// Both in one run, interleaved, so that load on the machine hits them alike; the
// counter "ratio" is the median of C(n,k)'s time over the bare loops' time.
void BM_CombinationsOverBareLogs(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  std::vector<double> ratios;
  for (auto _ : state) {
    const auto t0 = std::chrono::steady_clock::now();
    w.Stored2 = kN;
    w.Result = 0;
    benchmark::DoNotOptimize(w.ComputeCombinations());
    const auto t1 = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(BareLogLoops(kN));
    const auto t2 = std::chrono::steady_clock::now();
    ratios.push_back(std::chrono::duration<double>(t1 - t0).count() /
                     std::chrono::duration<double>(t2 - t1).count());
  }
  std::sort(ratios.begin(), ratios.end());
  state.counters["ratio"] = ratios[ratios.size() / 2];
}
BENCHMARK(BM_CombinationsOverBareLogs)->Unit(benchmark::kMillisecond)->Iterations(15);

}  // namespace
}  // namespace tessarine
