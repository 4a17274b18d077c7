// The F probability sheet's calculation: inputs read from the fields, texts to show.
#pragma once

#include <string>
#include <string_view>

#include "statistics/f_probability.hpp"

namespace tessarine::statistics {

// Whether CalculateButton is enabled: F at least 0 (an empty field reads 0), both
// degrees of freedom above 0.
bool CalculateEnabled(std::string_view f_text, std::string_view dfn_text,
                      std::string_view dfd_text);

// "p = 0.50000000", or "p < 0.00000001" for a p of 1e-08 or less.
std::string ProbabilityText(double p, std::string_view decimal_separator);

// The first part of a press on Calculate.
struct UnadjustedOutcome {
  // The values as read; the adjusted part uses them even when they failed the test.
  double f = 0.0;
  double dfn = 0.0;
  double dfd = 0.0;
  // Beep and the input error sheet; the press goes on to the adjusted part all the same.
  bool input_error = false;
  // Without an error: the fields rewritten in normal form (each change runs its field's
  // change handler), then the output text, the result sound, Calculate disabled.
  std::string f_text;
  std::string dfn_text;
  std::string dfd_text;
  std::string output_text;
};

UnadjustedOutcome CalculateUnadjusted(std::string_view f_text, std::string_view dfn_text,
                                      std::string_view dfd_text, std::string_view decimal_separator,
                                      const MessageBox& message_box);

// The second part, only with EpsilonCheckBox on.
struct AdjustedOutcome {
  // Beep, the epsilon error sheet, the box turned off, the sheet closes itself.
  bool epsilon_error = false;
  // Without an error: the epsilon field rewritten, the result sound, then the adjusted
  // output, Calculate disabled.
  std::string epsilon_text;
  std::string output_text;
};

// Epsilon must lie in [1e-15, 1]; it scales both degrees of freedom.
AdjustedOutcome CalculateAdjusted(const UnadjustedOutcome& unadjusted,
                                  std::string_view epsilon_text, std::string_view decimal_separator,
                                  const MessageBox& message_box);

inline constexpr std::string_view kInputErrorText =
    "You must enter a positive numerical value in all boxes before calculating value for p.";
inline constexpr std::string_view kEpsilonErrorText =
    "Epsilon value must be larger than 0 and equal to or less than 1.  Enter new value for "
    "epsilon and try again.";

}  // namespace tessarine::statistics
