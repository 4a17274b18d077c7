// n!, C(n,k) and P(n,k). C and P are sums of logarithms, never exact integers: a
// large result shows what Exp of the sum gives. Their loops can run long, so they
// yield to the event loop now and then and poll the abort chord at every round.
#include "calculator/progress_bar_window.hpp"
#include "calculator/calc_window.hpp"
#include "calculator/long_loop.hpp"
#include "runtime/arithmetic.hpp"
#include "shell/program.hpp"

namespace tessarine {

void CalcWindow::ButtonFactorialAction() {
  PlayCalculationSound();
  WriteToTape("    n!");
  if (Result != Floor(Result) || Result != Abs(Result)) {
    ErrorHasOccurred(true, "Error: Not a positive integer.");
  } else if (Result > 170) {
    ErrorHasOccurred(true, "Error: Overflow.");
  } else {
    double product = 1;
    for (int i = 1; i <= static_cast<int>(Result); ++i) product *= i;
    Result = product;
    UpdateDisplay();
    WriteToTape("     ◊");
  }
  ClearDisplay2 = true;
  UserIsTypingExponent = false;
  SpeakButton("Factorial");
}

void CalcWindow::CombinationsButtonAction() {
  PlayCalculationSound();
  WriteToTape("C(n,k)");
  Stored2 = Result;
  ClearDisplay = true;
  Calculation2 = "Cnk";
  UserIsTypingExponent = false;
  SpeakButton("Combinations");
}

void CalcWindow::PermutationsButtonAction() {
  PlayCalculationSound();
  WriteToTape("P(n,k)");
  Stored2 = Result;
  ClearDisplay = true;
  Calculation2 = "Pnk";
  UserIsTypingExponent = false;
  SpeakButton("Permutations");
}

namespace {

// Moves the bar only when its whole value grows: at most 500 updates in all.
void AdvanceBar(Control* bar, double progress) {
  const float p = static_cast<float>(progress);
  if (bar->Value() < Floor(p)) bar->SetValue(static_cast<int>(WholePart(p)));
}

}  // namespace

double CalcWindow::ComputeCombinations() {
  const double n = Stored2;
  const double k = Result;
  LongLoop loop(platform_);
  Control* bar = nullptr;
  if (n - k > 50) {
    bar = &program_.ShowProgressBarWindow().CalculatingProgressBar;
    bar->SetValue(1);
    bar->SetMaximum(500);
  }

  double a = 0;
  for (std::int64_t i = WholePart(k + 1); i <= n; ++i) {
    a += Log(static_cast<double>(i));
    if (bar) {
      AdvanceBar(bar, (static_cast<double>(i) - k + 1) / (n - k + 1) * 250);
      if (loop.AbortChordDown()) {
        LongCalculationAborted = true;
        program_.CloseProgressBarWindow();
        return Result;
      }
      loop.Round();
    }
  }

  double b = 0;
  for (std::int64_t j = 1; j <= n - k; ++j) {
    b += Log(static_cast<double>(j));
    if (bar) {
      AdvanceBar(bar, (static_cast<double>(j) - 1) / (n - k - 1) * 250 + 250);
      if (loop.AbortChordDown()) {
        // Unlike the first loop, this one leaves LongCalculationAborted alone: the
        // period of the chord then arrives as a decimal point.
        program_.CloseProgressBarWindow();
        return Result;
      }
      loop.Round();
    }
  }

  program_.CloseProgressBarWindow();
  return Round(Exp(a - b));
}

double CalcWindow::ComputePermutations() {
  const double n = Stored2;
  const double k = Result;
  if (!(k < 171)) {
    ErrorHasOccurred(true, "Error: Overflow.");
    return 0;
  }
  LongLoop loop(platform_);
  const std::int64_t start = platform_.clock.Ticks();
  double a = 0;
  for (std::int64_t i = WholePart(n - k + 1); i <= n; ++i) {
    if (platform_.keyboard.AsyncCommandKey()) {
      if (platform_.keyboard.AsyncKeyDown(kPeriodKeyCode)) {
        LongCalculationAborted = true;
        return Result;
      }
      // The command key alone: this round adds nothing. Kept as it behaves.
    } else {
      a += Log(static_cast<double>(i));
      if (std::isnan(a)) {  // the text of a not-a-number is "NAN"
        ErrorHasOccurred(true, "Error: Overflow.");
        break;
      }
    }
    // A hard limit of five seconds, reported as overflow.
    if (platform_.clock.Ticks() > start + 300) {
      ErrorHasOccurred(true, "Error: Overflow.");
      break;
    }
    loop.Round();
  }
  return Round(Exp(a));
}

}  // namespace tessarine
