#include "statistics/probability_calculator.hpp"

#include "runtime/numbers.hpp"

namespace tessarine::statistics {

bool CalculateEnabled(std::string_view f_text, std::string_view dfn_text,
                      std::string_view dfd_text) {
  return Val(f_text) >= 0 && Val(dfn_text) > 0 && Val(dfd_text) > 0;
}

std::string ProbabilityText(double p, std::string_view decimal_separator) {
  if (p > 1e-08) return "p = " + Format(p, "0.00000000", decimal_separator);
  return "p < 0.00000001";
}

UnadjustedOutcome CalculateUnadjusted(std::string_view f_text, std::string_view dfn_text,
                                      std::string_view dfd_text, std::string_view decimal_separator,
                                      const MessageBox& message_box) {
  UnadjustedOutcome outcome;
  outcome.dfn = Val(dfn_text);
  outcome.dfd = Val(dfd_text);
  outcome.f = Val(f_text);
  if (outcome.dfn > 0 && outcome.dfd > 0 && outcome.f >= 0) {
    const double p = Probability(outcome.dfn, outcome.dfd, outcome.f, message_box);
    outcome.f_text = Str(outcome.f);
    outcome.dfn_text = Str(outcome.dfn);
    outcome.dfd_text = Str(outcome.dfd);
    outcome.output_text = ProbabilityText(p, decimal_separator);
  } else {
    outcome.input_error = true;
  }
  return outcome;
}

AdjustedOutcome CalculateAdjusted(const UnadjustedOutcome& unadjusted,
                                  std::string_view epsilon_text, std::string_view decimal_separator,
                                  const MessageBox& message_box) {
  AdjustedOutcome outcome;
  const double e = Val(epsilon_text);
  if (e < 1e-15 || e > 1.0) {
    outcome.epsilon_error = true;
    return outcome;
  }
  const double q = Probability(unadjusted.dfn * e, unadjusted.dfd * e, unadjusted.f, message_box);
  outcome.epsilon_text = Str(e);
  outcome.output_text = ProbabilityText(q, decimal_separator);
  return outcome;
}

}  // namespace tessarine::statistics
