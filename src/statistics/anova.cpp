#include "statistics/anova.hpp"

#include "runtime/arithmetic.hpp"
#include "runtime/numbers.hpp"
#include "runtime/text.hpp"
#include "statistics/single.hpp"
#include "statistics/variance_analysis.hpp"

namespace tessarine::statistics {

namespace {

std::string DfText(const AnovaOutcome& outcome) {
  return Str(outcome.dfa) + "," + Str(outcome.dfe);
}

}  // namespace

AnovaOutcome RunAnova(const SampleStore& store, const AnovaChoice& choice,
                      const MessageBox& message_box) {
  Selection sel;
  const int k = SelectTicked(choice.ticked, sel);
  AnovaOutcome outcome;
  for (int i = 1; i <= k; ++i) {
    if (store.Count(sel(i)) < 1) {
      outcome.error = AnovaError::kEmptySample;
      return outcome;
    }
  }
  if (!(k > 2)) {
    outcome.error = AnovaError::kFewerThanThree;
    return outcome;
  }
  FRatio ratio;
  if (choice.between) {
    ratio = BetweenGroups(store, sel, k);
  } else {
    for (int i = 2; i <= k; ++i) {
      if (store.Count(sel(i)) != store.Count(sel(i - 1))) {
        outcome.error = AnovaError::kRepeatedSizesDiffer;
        return outcome;
      }
    }
    ratio = RepeatedMeasures(store, sel, k);
  }
  outcome.dfa = ratio.dfa;
  outcome.dfe = ratio.dfe;
  outcome.f = ratio.f;
  outcome.p = Single(Probability(ratio.dfa, ratio.dfe, Abs(ratio.f), message_box));
  return outcome;
}

std::string AnovaResultText(const AnovaOutcome& outcome, std::string_view decimal_separator) {
  return "F (" + DfText(outcome) + ") = " + Format(outcome.f, "-0.000", decimal_separator) +
         ", p = " + Format(outcome.p, "-0.0000", decimal_separator);
}

std::string AnovaTapeText(const AnovaOutcome& outcome, std::string_view decimal_separator) {
  const std::string cr = Chr(13);
  // Six blanks before "p=" here, four on the t-test's tape line.
  return " F(" + DfText(outcome) + ")=" + Format(outcome.f, "-0.000", decimal_separator) + cr +
         "      p=" + Format(outcome.p, "-0.0000", decimal_separator) + cr;
}

std::string AnovaErrorMessage(AnovaError error) {
  switch (error) {
    case AnovaError::kNone:
      return "";
    case AnovaError::kEmptySample:
      return "User Error. One or more of the selected samples do not contain any values. Please "
             "check samples and try again.";
    case AnovaError::kFewerThanThree:
      return "User Error. You must select three or more samples. Please reselect samples to "
             "compare and try again.";
    case AnovaError::kRepeatedSizesDiffer:
      return "User Error. All sample sizes must contain the same number of values for repeated "
             "measures ANOVA. Please check samples and try again.";
  }
  return "";
}

}  // namespace tessarine::statistics
