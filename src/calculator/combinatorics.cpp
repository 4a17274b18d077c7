// n!, C(n,k) and P(n,k). C and P are sums of logarithms, never exact integers: a
// large result shows what Exp of the sum gives. Their loops can run long, so they
// yield to the event loop now and then and poll the abort chord at every round.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "calculator/calc_window.hpp"
#include "calculator/long_loop.hpp"
#include "calculator/progress_bar_window.hpp"
#include "runtime/arithmetic.hpp"

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

// C(n,k) and P(n,k) arm themselves like the other two-operand keys, but with the
// sound first: n, the key, k, then an operator or equals.
void CalcWindow::ArmCombinatorics(const char* tape, const char* function, const char* speech) {
  PlayCalculationSound();
  WriteToTape(tape);
  Stored2 = Result;
  ClearDisplay = true;
  Calculation2 = function;
  UserIsTypingExponent = false;
  SpeakButton(speech);
}

void CalcWindow::CombinationsButtonAction() {
  ArmCombinatorics("C(n,k)", "Cnk", "Combinations");
}

void CalcWindow::PermutationsButtonAction() {
  ArmCombinatorics("P(n,k)", "Pnk", "Permutations");
}

namespace {

// The progress bar of one loop of C(n,k). The bar's whole value is tested against
// p(i), which grows with i; rather than evaluate p at every round, the bar works out
// the first round at which Floor(p) exceeds its value, evaluating p there exactly as
// a test at every round would, so it moves at the same rounds for a fraction of the
// cost: at most 500 moves in all.
class LoopProgress {
 public:
  // p(i) = (i - offset) / span * 250 + base, as a 32-bit float.
  LoopProgress(Control* bar, double offset, double span, double base, std::int64_t last)
      : bar_(bar), offset_(offset), span_(span), base_(base), last_(last) {}

  // Called at round i; cheap unless the bar moves here.
  void At(std::int64_t i) {
    if (!bar_ || i < next_) return;
    const float p = P(i);
    if (bar_->Value() < Floor(p)) bar_->SetValue(static_cast<int>(WholePart(p)));
    next_ = NextMove(i);
  }

 private:
  float P(std::int64_t i) const {
    return static_cast<float>((static_cast<double>(i) - offset_) / span_ * 250 + base_);
  }
  bool Moves(std::int64_t i) const { return bar_->Value() < Floor(P(i)); }

  // The first round after i at which the bar moves; past the last round if none.
  std::int64_t NextMove(std::int64_t i) const {
    const double target = bar_->Value() + 1;
    double guess = std::ceil((target - base_) / 250 * span_ + offset_);
    std::int64_t j = guess <= static_cast<double>(i)      ? i + 1
                     : guess > static_cast<double>(last_) ? last_ + 1
                                                          : static_cast<std::int64_t>(guess);
    while (j > i + 1 && Moves(j - 1)) --j;  // p is rounded: the guess may be late...
    while (j <= last_ && !Moves(j)) ++j;    // ...or early, by a round or two
    return j;
  }

  Control* bar_;
  double offset_, span_, base_;
  std::int64_t last_;
  std::int64_t next_ = INT64_MIN;
};

}  // namespace

double CalcWindow::ComputeCombinations() {
  const double n = Stored2;
  const double k = Result;
  LongLoop loop(platform_);
  Control* bar = nullptr;
  if (n - k > 50) {
    bar = &ShowProgressBarWindow(app_).CalculatingProgressBar;
    bar->SetValue(1);
    bar->SetMaximum(500);
  }
  const std::int64_t last_i = WholePart(std::min(n, 9.2e18));

  // First loop: p = (i - k + 1) / (n - k + 1) x 250.
  LoopProgress first(bar, k - 1, n - k + 1, 0, last_i);
  double a = 0;
  for (std::int64_t i = WholePart(k + 1); i <= n; ++i) {
    a += Log(static_cast<double>(i));
    if (bar) {
      first.At(i);
      if (loop.AbortChordDown()) {
        LongCalculationAborted = true;
        CloseProgressBarWindow(app_);
        return Result;
      }
      loop.Round();
    }
  }

  // Second loop: p = (j - 1) / (n - k - 1) x 250 + 250.
  LoopProgress second(bar, 1, n - k - 1, 250, WholePart(std::min(n - k, 9.2e18)));
  double b = 0;
  for (std::int64_t j = 1; j <= n - k; ++j) {
    b += Log(static_cast<double>(j));
    if (bar) {
      second.At(j);
      if (loop.AbortChordDown()) {
        // Unlike the first loop, this one leaves LongCalculationAborted alone: the
        // period of the chord then arrives as a decimal point.
        CloseProgressBarWindow(app_);
        return Result;
      }
      loop.Round();
    }
  }

  CloseProgressBarWindow(app_);
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
