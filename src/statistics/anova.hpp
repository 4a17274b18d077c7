// The ANOVA sheet's computation and texts: three or more samples, between or within.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "statistics/f_probability.hpp"
#include "statistics/sample_store.hpp"

namespace tessarine::statistics {

// The user's choices on the sheet, in the state a fresh sheet opens with.
struct AnovaChoice {
  // SampleNumberCheckBox(0) to (9): "Sample 1" to "Sample 10".
  std::array<bool, 10> ticked = {true, true, true, false, false, false, false, false, false, false};
  bool between = true;  // BetweenButton; false for WithinButton, "Repeated measures"
};

// User errors, in the order they are tested: an empty ticked sample is found before
// the count of ticks is looked at.
enum class AnovaError {
  kNone,
  kEmptySample,          // a ticked sample holds no value
  kFewerThanThree,       // fewer than three boxes ticked
  kRepeatedSizesDiffer,  // repeated measures, and the sizes differ
};

// What one press on Calculate gives: an error, or the figures to show.
struct AnovaOutcome {
  AnovaError error = AnovaError::kNone;
  // Valid only without an error.
  std::int32_t dfa = 0;
  float dfe = 0.0f;
  float f = 0.0f;
  float p = 0.0f;
};

// A repeated-measures analysis of more than 10 subjects throws the runtime's
// OutOfBoundsException at the 11th.
AnovaOutcome RunAnova(const SampleStore& store, const AnovaChoice& choice,
                      const MessageBox& message_box);

// "F (2,6) = 3.000, p = 0.1250" for the result label.
std::string AnovaResultText(const AnovaOutcome& outcome, std::string_view decimal_separator);
// The two lines the tape gets, each ending in Chr(13).
std::string AnovaTapeText(const AnovaOutcome& outcome, std::string_view decimal_separator);
// The text of the error sheet; empty for kNone.
std::string AnovaErrorMessage(AnovaError error);

// What StatsErrorType holds while the error sheet stands over an ANOVA.
inline constexpr std::string_view kAnovaErrorType = "ANOVA";

}  // namespace tessarine::statistics
