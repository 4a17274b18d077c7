// The cost of a keypad action (the key's whole method, display update included)
// and of FormatResult and the number primitives alone.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench_calculator.hpp"
#include "runtime/numbers.hpp"

namespace tessarine {
namespace {

// Reports the time per key press as "per_action".
void SetPerAction(benchmark::State& state, std::size_t actions_per_iteration) {
  state.counters["per_action"] = benchmark::Counter(
      static_cast<double>(actions_per_iteration),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_KeypadCalculation(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  // 12.5 + 7 = , then 3 x 4 = : digits, point, operators and equals.
  std::vector<Control*> keys;
  for (const char* name :
       {"Button1", "Button2", "ButtonDecimal", "Button5", "ButtonPlus", "Button7", "ButtonEqual",
        "Button3", "ButtonTimes", "Button4", "ButtonEqual"})
    keys.push_back(&w.Get(name));
  for (auto _ : state) {
    for (Control* key : keys) key->Click();
    calc.headless.TakeEvents();  // the log of sounds would grow without end
  }
  benchmark::DoNotOptimize(w.Result);
  SetPerAction(state, keys.size());
}
BENCHMARK(BM_KeypadCalculation);

void BM_DigitKey(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  Control& digit = w.Get("Button7");
  Control& clear = w.Get("ButtonClear");
  for (auto _ : state) {
    for (int i = 0; i < 10; ++i) digit.Click();
    state.PauseTiming();
    clear.Click();
    calc.headless.TakeEvents();
    state.ResumeTiming();
  }
  SetPerAction(state, 10);
}
BENCHMARK(BM_DigitKey);

void BM_OperatorKey(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  Control& digit = w.Get("Button3");
  Control& plus = w.Get("ButtonPlus");
  for (auto _ : state) {
    digit.Click();
    plus.Click();
    calc.headless.TakeEvents();
  }
  SetPerAction(state, 2);
}
BENCHMARK(BM_OperatorKey);

void BM_EqualsKey(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  Control& equals = w.Get("ButtonEqual");
  w.Get("Button9").Click();
  for (auto _ : state) {
    equals.Click();
    calc.headless.TakeEvents();
  }
  SetPerAction(state, 1);
}
BENCHMARK(BM_EqualsKey);

const std::vector<double> kValues = {0,      5,          -12.5, 2.0 / 3, 123456789012,
                                     1.5e20, 0.00000005, -1e70, 3.14159, 1234567890123};

void BM_FormatResult(benchmark::State& state) {
  BenchCalculator calc;
  CalcWindow& w = calc.Window();
  for (auto _ : state)
    for (double x : kValues) w.FormatResult(x);
  SetPerAction(state, kValues.size());
}
BENCHMARK(BM_FormatResult);

void BM_Format(benchmark::State& state) {
  for (auto _ : state)
    for (double x : kValues) benchmark::DoNotOptimize(Format(x, "-#.########", "."));
  SetPerAction(state, kValues.size());
}
BENCHMARK(BM_Format);

void BM_CStr(benchmark::State& state) {
  for (auto _ : state)
    for (double x : kValues) benchmark::DoNotOptimize(CStr(x, "."));
  SetPerAction(state, kValues.size());
}
BENCHMARK(BM_CStr);

}  // namespace
}  // namespace tessarine

BENCHMARK_MAIN();
