// The fraction calculator: two mixed numbers, an operator and a mixed-number result,
// worked in 32-bit integers on the fields' texts, which are read back at each step.
#pragma once

#include <functional>
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

// The sounds a button asks of the window once its fields are written. The calculator
// neither speaks nor writes to the tape.
struct FractionFeedback {
  std::vector<FractionSound> sounds;
};

// Shows a modal message box in the middle of a calculation. The fields as they stand
// at that moment are what the user sees behind the box, so the window puts them on
// screen first.
using FractionMessageBox =
    std::function<void(const FractionCalculatorFields& fields, const std::string& message)>;

inline constexpr std::string_view kOneNegativeValueMessage =
    "There can only be one negative value for each mixed number.";

// The operator popup's rows: plus, en dash, letter x, division sign.
inline constexpr std::string_view kFractionOperators[] = {"+", "\u2013", "x", "\u00F7"};

// Calculate: validates both operands (a message box for each with two minus signs,
// shown before its numerator loses the minus and so after the first operand's did),
// applies the operator named by operator_text (the popup's text; any other text
// computes nothing) and reduces the result. The decimal separator is the system's,
// for the fields read with CDbl.
FractionFeedback FractionCalculateButtonAction(FractionCalculatorFields& fields,
                                               std::string_view operator_text,
                                               std::string_view decimal_separator,
                                               const FractionMessageBox& message_box);

// Clear: empties the nine fields; the operator keeps its row.
FractionFeedback FractionClearButtonAction(FractionCalculatorFields& fields);

// Moves a result into the first operand and empties the result and the second
// operand. Returns whether it did, in which case the window clears the focus and
// then focuses whole2.
bool TransferFractionResultToInput(FractionCalculatorFields& fields);

}  // namespace tessarine
