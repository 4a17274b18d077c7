// The t-test sheet's computation and texts: two samples, unpaired or paired.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "statistics/f_probability.hpp"
#include "statistics/sample_store.hpp"

namespace tessarine::statistics {

// The user's choices on the sheet, in the state a fresh sheet opens with.
struct TTestChoice {
  // SampleNumberCheckBox(0) to (9): "Sample 1" to "Sample 10".
  std::array<bool, 10> ticked = {true,  true,  false, false, false,
                                 false, false, false, false, false};
  bool unpaired = true;
  bool one_tailed = false;
};

// User errors, in the order they are tested.
enum class TTestError {
  kNone,
  kNotTwoSamples,      // not exactly two boxes ticked
  kEmptySample,        // a ticked sample holds no value
  kPairedSizesDiffer,  // paired, and the two sizes differ
};

// What one press on Calculate gives: an error, or the figures to show.
struct TTestOutcome {
  TTestError error = TTestError::kNone;
  // Valid only without an error. t is Sqrt(f); the sign of the difference is lost.
  float df = 0.0f;
  float f = 0.0f;
  float p = 0.0f;
};

// Runs the test as an analysis of variance with one degree of freedom between the
// two ticked samples. A paired test of more than 10 pairs throws the runtime's
// OutOfBoundsException at the 11th: the paired arrays hold 10 rows.
TTestOutcome RunTTest(const SampleStore& store, const TTestChoice& choice,
                      const MessageBox& message_box);

// "t (4) = 1.225, p = 0.2879" for the result label.
std::string TTestResultText(const TTestOutcome& outcome, std::string_view decimal_separator);
// The two lines the tape gets, each ending in Chr(13).
std::string TTestTapeText(const TTestOutcome& outcome, std::string_view decimal_separator);
// The text of the error sheet; empty for kNone.
std::string TTestErrorMessage(TTestError error);

// What StatsErrorType holds while the error sheet stands over a t-test.
inline constexpr std::string_view kTTestErrorType = "ttest";

}  // namespace tessarine::statistics
