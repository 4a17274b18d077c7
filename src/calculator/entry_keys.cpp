// The keys that build a number: digits, the point, change sign, clear and clear
// entry.
#include "calculator/calc_window.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/text.hpp"

namespace tessarine {

void CalcWindow::DigitKey(int digit) {
  KeyType(digit);
  PlayNumberSound();
}

void CalcWindow::KeyType(int digit) {
  if (UserIsTypingExponent) {
    // A fourth exponent digit is dropped. The sign goes back to "+" on every digit,
    // even after change sign made it "-".
    Exponent = tessarine::Left(Exponent + tessarine::CStr(digit), 3);
    ExponentText.SetText("+" + Exponent);
    Result = CDbl(Display.Text()) * Pow(10, Val(ExponentText.Text()));
  } else {
    if (ClearDisplay || ClearDisplay2) {
      StringResult = tessarine::CStr(digit);
      ExponentText.SetText("");
    } else if (Len(StringResult) < 12) {
      StringResult += tessarine::CStr(digit);
    }  // at 12 characters the digit is ignored, silently
    Display.SetText(StringResult);
    Result = CDbl(StringResult);
    ClearDisplay = false;
    ClearDisplay2 = false;
  }
  SpeakButton(Str(digit));
}

void CalcWindow::ButtonDecimalAction() {
  if (!ClearDisplay && !ClearDisplay2) {
    // Inside a number: the test looks at the formatted value, not at what was
    // typed, so a second point after a whole number is appended again.
    const std::string s = Format(Result, globals_.NoExponentFormat);
    const std::string t = tessarine::Left(s, Len(s) - 1);
    if (InStrB(t, DecimalCharacter) == 0) StringResult += DecimalCharacter;
  } else {
    // A new number: Result keeps the old value until a digit follows.
    StringResult = DecimalCharacter;
    ClearDisplay = false;
  }
  ClearDisplay2 = false;
  UpdateDisplay();
  PlayNumberSound();
  PlayCalculationSound();
  SpeakButton("Point");
}

void CalcWindow::ButtonChangeSignAction() {
  if (!UserIsTypingExponent) {
    if (Result < 0)
      Result = Abs(Result);
    else if (Result > 0)
      Result = 0 - Result;
    UpdateDisplay();
  } else {
    if (tessarine::Left(ExponentText.Text(), 1) == "+")
      ExponentText.SetText("-" + Exponent);
    else
      ExponentText.SetText("+" + Exponent);
    Result = CDbl(Display.Text()) * Pow(10, Val(ExponentText.Text()));
  }
  PlayNumberSound();
  SpeakButton("Change sign");
}

void CalcWindow::ButtonClearAction() {
  Result = 0;
  StringResult.clear();
  UpdateDisplay();
  if (TapeIsOn()) {
    // Past WriteToTape on purpose: a blank line, then the clear line.
    AppendToTape(CR + Padded(CDbl(Display.Text())) + "     C" + CR);
  }
  Exponent.clear();
  Stored = 0;
  Stored2 = 0;
  Calculation = "None";
  Calculation2 = "None";
  ClearDisplay2 = false;
  ErrorHasOccurred(false, "0");
  PlayClearSound();
  UserIsTypingExponent = false;
  SpeakButton("[[inpt PHON]]\\klIYr[[inpt TEXT]]");
}

void CalcWindow::ButtonClearEntryAction() {
  if (platform_.keyboard.OptionKey()) {
    // With Option: a true clear entry.
    Result = 0;
    StringResult.clear();
  } else {
    // Otherwise a backspace over what was typed.
    StringResult = tessarine::Left(StringResult, Len(StringResult) - 1);
    Result = StringResult.empty() ? 0 : CDbl(StringResult);
  }
  UpdateDisplay();
  PlayClearSound();
  SpeakButton("[[inpt PHON]]klIYr=1\\EHn=trIY[[inpt TEXT]].");
}

}  // namespace tessarine
