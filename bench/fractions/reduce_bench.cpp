// reduce on its worst cases against the step-by-step loop: a bottom near 2^31 whose
// common factor only the loop's last rounds reach, and one the loop can't reduce.
#include <benchmark/benchmark.h>

#include <string>

#include "fractions/reduce.hpp"
#include "literal_reduce.hpp"

namespace tessarine {
namespace {

struct Case {
  const char* top;
  const char* bottom;
};

constexpr Case kCases[] = {
    {"999999937", "1999999874"},   // the common prime is the loop's last divisor
    {"1073741823", "2147483646"},  // 2^31 - 2: the loop's longest run, ending in 1/2
    {"46337", "2147117569"},       // the square of a prime near the square root of 2^31
};

void BM_Reduce(benchmark::State& state) {
  const Case& c = kCases[state.range(0)];
  for (auto _ : state) {
    std::string top = c.top, bottom = c.bottom;
    reduce(top, bottom);
    benchmark::DoNotOptimize(top);
    benchmark::DoNotOptimize(bottom);
  }
  state.SetLabel(std::string(c.top) + "/" + c.bottom);
}
BENCHMARK(BM_Reduce)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

void BM_LiteralLoop(benchmark::State& state) {
  const Case& c = kCases[state.range(0)];
  for (auto _ : state) {
    std::string top = c.top, bottom = c.bottom;
    literal::LiteralReduce(top, bottom);
    benchmark::DoNotOptimize(top);
    benchmark::DoNotOptimize(bottom);
  }
  state.SetLabel(std::string(c.top) + "/" + c.bottom);
}
BENCHMARK(BM_LiteralLoop)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->Iterations(1);

// Fractional texts take the path that divides one prime at a time; its worst case is
// a common factor of two primes near the square root of 2^31.
void BM_ReduceFractional(benchmark::State& state) {
  for (auto _ : state) {
    std::string top = "2147117569.5", bottom = "2147117569";
    reduce(top, bottom);
    benchmark::DoNotOptimize(top);
  }
}
BENCHMARK(BM_ReduceFractional)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tessarine

BENCHMARK_MAIN();
