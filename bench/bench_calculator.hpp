// A running calculator on the headless platform, past its start-up, for benchmarks.
#pragma once

#include "calculator/calc_window.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "shell/program.hpp"

namespace tessarine {

struct BenchCalculator {
  BenchCalculator() {
    program.Start();
    headless.Wait(100);
  }
  CalcWindow& Window() { return program.GetCalcWindow(); }
  HeadlessPlatform headless;
  Program program{headless.platform(), 1};
};

}  // namespace tessarine
