#include "statistics/ttest.hpp"

#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"
#include "statistics/single.hpp"
#include "statistics/variance_analysis.hpp"

namespace tessarine::statistics {

namespace {

std::string TText(const TTestOutcome& outcome, std::string_view sep) {
  return Format(Sqrt(outcome.f), "-0.000", sep);
}

}  // namespace

TTestOutcome RunTTest(const SampleStore& store, const TTestChoice& choice,
                      const MessageBox& message_box) {
  Selection sel;
  const int k = SelectTicked(choice.ticked, sel);
  TTestOutcome outcome;
  if (k != 2) {
    outcome.error = TTestError::kNotTwoSamples;
    return outcome;
  }
  for (int i = 1; i <= 2; ++i) {
    if (store.Count(sel(i)) < 1) {
      outcome.error = TTestError::kEmptySample;
      return outcome;
    }
  }
  // Two samples are an analysis of variance with one degree of freedom between them.
  FRatio test;
  if (choice.unpaired) {
    test = BetweenGroups(store, sel, k);
  } else {
    if (store.Count(sel(2)) != store.Count(sel(1))) {
      outcome.error = TTestError::kPairedSizesDiffer;
      return outcome;
    }
    test = RepeatedMeasures(store, sel, k);
  }
  outcome.df = test.dfe;
  outcome.f = test.f;
  outcome.p = Single(Probability(1.0, test.dfe, Abs(test.f), message_box));
  if (choice.one_tailed) outcome.p = Single(outcome.p / 2.0);
  return outcome;
}

std::string TTestResultText(const TTestOutcome& outcome, std::string_view decimal_separator) {
  return "t (" + Str(outcome.df) + ") = " + TText(outcome, decimal_separator) +
         ", p = " + Format(outcome.p, "-0.0000", decimal_separator);
}

std::string TTestTapeText(const TTestOutcome& outcome, std::string_view decimal_separator) {
  const std::string cr = Chr(13);
  return " t(" + Str(outcome.df) + ")=" + TText(outcome, decimal_separator) + cr +
         "    p=" + Format(outcome.p, "-0.0000", decimal_separator) + cr;
}

std::string TTestErrorMessage(TTestError error) {
  switch (error) {
    case TTestError::kNone:
      return "";
    case TTestError::kNotTwoSamples:
      return "User Error. You must select two samples for a t-test. Please reselect samples to "
             "compare and try again.";
    case TTestError::kEmptySample:
      return "User Error. One or more of the selected samples do not contain any values. Please "
             "check samples and try again.";
    case TTestError::kPairedSizesDiffer:
      return "User Error. Both samples must contain the same number of values for a paired "
             "t-test. Please check samples and try again.";
  }
  return "";
}

}  // namespace tessarine::statistics
