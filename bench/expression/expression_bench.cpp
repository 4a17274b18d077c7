// One keystroke's work on the Expression tab: set the source and run it, which
// compiles and evaluates, for a typical formula and for a very long one.
#include <benchmark/benchmark.h>

#include <string>

#include "expression/script_engine.hpp"

namespace tessarine {
namespace {

// 30 characters, the kind of formula typed by hand.
const std::string kTypical = "4*((2+3)-tan(2))+sqrt(16)/2.55";

std::string LongFormula() {
  std::string typed = "0";
  while (typed.size() < 10000) typed += "+(1.5*max(2,3)-7/4)";
  return typed;
}

void CompileAndRun(benchmark::State& state, const std::string& typed) {
  ScriptEngine engine;
  std::string printed;
  engine.Print = [&printed](const std::string& s) { printed = s; };
  const std::string source = "Print Str(" + typed + ")";
  for (auto _ : state) {
    engine.Source(source);
    engine.Run();
    benchmark::DoNotOptimize(printed.data());
  }
  state.SetLabel(std::to_string(typed.size()) + " characters, prints " + printed.substr(0, 20));
}

void BM_TypicalFormula(benchmark::State& state) {
  CompileAndRun(state, kTypical);
}
BENCHMARK(BM_TypicalFormula)->Unit(benchmark::kMicrosecond);

void BM_LongFormula(benchmark::State& state) {
  CompileAndRun(state, LongFormula());
}
BENCHMARK(BM_LongFormula)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tessarine

BENCHMARK_MAIN();
