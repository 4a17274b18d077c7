// The operator keys, equals and percent, and Calculate, which applies what is
// pending. There is no expression stack: one pending operator with its left
// operand, and one pending two-operand function with its own.
#include "calculator/calc_window.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/text.hpp"

namespace tessarine {

void CalcWindow::Calculate() {
  // 1. The pending two-operand function binds tighter than the operator: it runs
  //    first and its result becomes the operator's right operand.
  bool ran = true;
  if (StrEq(Calculation2, "NthRoot") && !ClearDisplay)
    Result = Pow(Stored2, 1 / Result);
  else if (StrEq(Calculation2, "Power") && !ClearDisplay)
    Result = Pow(Stored2, Result);
  else if (StrEq(Calculation2, "LogBasen") && !ClearDisplay)
    Result = Log(Stored2) / Log(Result);  // the second operand is the base
  else if (StrEq(Calculation2, "DeltaPercent") && !ClearDisplay)
    Result = ((Stored2 - Result) / Result) / 0.01;
  else if (StrEq(Calculation2, "Cnk") && !ClearDisplay)
    Result = ComputeCombinations();
  else if (StrEq(Calculation2, "Pnk") && !ClearDisplay)
    Result = ComputePermutations();
  else if (StrEq(Calculation2, "Percent"))
    Result = Stored * Result / 100;
  else
    ran = false;
  if (ran) WriteToTape("     ◊");

  // 2. The pending operator, unless percent is finishing: percent leaves the
  //    operator for equals.
  if (!StrEq(Calculation2, "Percent")) {
    if (!ClearDisplay) {
      if (StrEq(Calculation, "Add"))
        Result = Stored + Result;
      else if (StrEq(Calculation, "Subtract"))
        Result = Stored - Result;
      else if (StrEq(Calculation, "Multiply"))
        Result = Stored * Result;
      else if (StrEq(Calculation, "Divide"))
        Result = Stored / Result;  // no test for zero: the error state catches it
    }
    UpdateDisplay();
    Stored = Result;
    ClearDisplay2 = false;
  } else {
    UpdateDisplay();
  }

  // 3. Nothing is pending any more.
  Calculation2.clear();
}

void CalcWindow::ButtonPlusAction() {
  WriteToTape("     +");
  Calculate();
  ClearDisplay = true;
  Calculation = "Add";
  PlayCalculationSound();
  SpeakButton("Plus");
}

void CalcWindow::ButtonMinusAction() {
  SpeakButton("Minus");
  WriteToTape("     -");
  Calculate();
  ClearDisplay = true;
  Calculation = "Subtract";
  PlayCalculationSound();
}

void CalcWindow::ButtonTimesAction() {
  SpeakButton("Times");
  WriteToTape("     x");
  Calculate();
  ClearDisplay = true;
  Calculation = "Multiply";
  PlayCalculationSound();
}

void CalcWindow::ButtonDivideAction() {
  SpeakButton("Divided by");
  WriteToTape("     ÷");
  Calculate();
  ClearDisplay = true;
  Calculation = "Divide";
  PlayCalculationSound();
}

void CalcWindow::ButtonEqualAction() {
  SpeakButton("Equals");
  WriteToTape("     =");
  Calculate();
  WriteToTape("     ◊");
  Calculation = "None";
  ClearDisplay = true;
  PlayResultSound();
  if (!ExponentText.Text().empty())
    SpeakTotal(Display.Text() + "e" + ExponentText.Text());
  else
    SpeakTotal(Display.Text());
}

void CalcWindow::ButtonPercentAction() {
  WriteToTape("     %");
  Calculation2 = "Percent";
  Calculate();
  UpdateDisplay();
  PlayCalculationSound();
  SpeakButton("Percent");
}

}  // namespace tessarine
