// The fraction calculator: two mixed numbers, an operator and a mixed-number result,
// worked in 32-bit integers on the fields' texts, which are read back at each step.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

// The texts of the calculator's nine fields, named as the window's controls.
struct FractionCalculatorFields {
  std::string whole1, numtop1, numbottom1;
  std::string whole2, numtop2, numbottom2;
  std::string ResultWhole, ResultNumTop, ResultNumBottom;
};

// The window's sounds that the calculator's buttons play.
enum class FractionSound {
  kPlayResultSound,
  kPlayClearSound,
};

// What a button asks of the window besides its fields' texts: message boxes to show,
// in order, then sounds to play. The calculator neither speaks nor writes to the tape.
struct FractionFeedback {
  std::vector<std::string> messages;
  std::vector<FractionSound> sounds;
};

inline constexpr std::string_view kOneNegativeValueMessage =
    "There can only be one negative value for each mixed number.";

// The operator popup's rows: plus, en dash, letter x, division sign.
inline constexpr std::string_view kFractionOperators[] = {"+", "\u2013", "x", "\u00F7"};

// Calculate: validates both operands (a message for each with two minus signs),
// applies the operator named by operator_text (the popup's text; any other text
// computes nothing) and reduces the result. The decimal separator is the system's,
// for the fields read with CDbl.
FractionFeedback FractionCalculateButtonAction(FractionCalculatorFields& fields,
                                               std::string_view operator_text,
                                               std::string_view decimal_separator);

// Clear: empties the nine fields; the operator keeps its row.
FractionFeedback FractionClearButtonAction(FractionCalculatorFields& fields);

// Moves a result into the first operand and empties the result and the second
// operand. Returns whether it did, in which case the window clears the focus and
// then focuses whole2.
bool TransferFractionResultToInput(FractionCalculatorFields& fields);

}  // namespace tessarine
