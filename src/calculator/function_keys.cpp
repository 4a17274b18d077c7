// The function keys of the advanced keypad: one-operand keys that act at once,
// keys that set a value, and two-operand keys that arm Calculate.
#include "calculator/calc_window.hpp"
#include "runtime/arithmetic.hpp"

namespace tessarine {

// The one pattern of every one-operand key. The flags differ from key to key on
// purpose: ClearDisplay2 keeps a pending operator alive, ClearDisplay cancels it,
// and no flag lets the next digit append to the old entry.
void CalcWindow::RunOneOperandKey(const char* tape, double (*function)(double), KeyFlag flag,
                                  const char* speech) {
  WriteToTape(tape);
  Result = function(Result);
  UpdateDisplay();
  WriteToTape("     ◊");
  if (flag == KeyFlag::ClearDisplay) ClearDisplay = true;
  if (flag == KeyFlag::ClearDisplay2) ClearDisplay2 = true;
  PlayCalculationSound();
  SpeakButton(speech);
}

void CalcWindow::ButtonSquareRootAction() {
  RunOneOperandKey(
      "    √x", [](double x) { return Sqrt(x); }, KeyFlag::ClearDisplay2, "Square root");
}
void CalcWindow::ButtonCubeRootAction() {
  RunOneOperandKey(
      "   3√x", [](double x) { return Pow(x, 0.3333333333333333); }, KeyFlag::ClearDisplay2,
      "Cube root");
}
void CalcWindow::ButtonSquaredAction() {
  RunOneOperandKey(
      "   x^2", [](double x) { return Pow(x, 2); }, KeyFlag::None, "Squared");
}
void CalcWindow::ButtonCubedAction() {
  RunOneOperandKey(
      "   x^3", [](double x) { return Pow(x, 3); }, KeyFlag::None, "Cubed");
}
void CalcWindow::ButtonOneOverXAction() {
  RunOneOperandKey(
      "   1/x", [](double x) { return 1 / x; }, KeyFlag::ClearDisplay, "Inverse");
}
void CalcWindow::ButtonlnAction() {
  RunOneOperandKey(
      "    ln", [](double x) { return Log(x); }, KeyFlag::ClearDisplay2, "Natural log");
}
void CalcWindow::ButtonLogAction() {
  RunOneOperandKey(
      "   log", [](double x) { return Log(x) / Log(10); }, KeyFlag::None, "Log base 10");
}
void CalcWindow::ButtonTenToTheXAction() {
  RunOneOperandKey(
      "  10^x", [](double x) { return Pow(10, x); }, KeyFlag::ClearDisplay, "10 to the X");
}
void CalcWindow::ButtoneToTheXAction() {
  RunOneOperandKey(
      "   e^x", [](double x) { return Exp(x); }, KeyFlag::ClearDisplay, "E to the X");
}
void CalcWindow::ButtonRoundAction() {
  RunOneOperandKey(
      "  roun", [](double x) { return Round(x); }, KeyFlag::ClearDisplay2, "Round");
}
void CalcWindow::ButtonRoundDownAction() {
  RunOneOperandKey(
      "   dow", [](double x) { return Floor(x); }, KeyFlag::ClearDisplay2, "Down");
}
void CalcWindow::ButtonRoundUpAction() {
  RunOneOperandKey(
      "    up", [](double x) { return Ceil(x); }, KeyFlag::ClearDisplay2, "Up");
}

void CalcWindow::ButtonRandomAction() {
  WriteToTape("   rnd");
  Result = app_.random.Rnd();
  UpdateDisplay();
  WriteToTape("     ◊");
  ClearDisplay = false;
  ClearDisplay2 = false;
  PlayCalculationSound();
  SpeakButton("Random");
}

void CalcWindow::ButtonpiAction() {
  // Ten decimals on purpose: the key's value is not the field Pi. One tape line,
  // with the value in it, as the key has no operand.
  Result = 3.1415926535;
  UpdateDisplay();
  WriteToTape("     π");
  ClearDisplay = false;
  ClearDisplay2 = false;
  PlayCalculationSound();
  SpeakButton("Pi");
}

void CalcWindow::ArmTwoOperandFunction(const char* tape, const char* function, const char* speech) {
  WriteToTape(tape);
  Stored2 = Result;
  ClearDisplay = true;
  Calculation2 = function;
  UserIsTypingExponent = false;
  PlayCalculationSound();
  SpeakButton(speech);
}

void CalcWindow::ButtonXtotheYAction() {
  ArmTwoOperandFunction("   x^y", "Power", "X to the why");
}
void CalcWindow::ButtonNthRootAction() {
  ArmTwoOperandFunction("   x√y", "NthRoot", "enth, root");
}
void CalcWindow::ButtonLogBasenAction() {
  ArmTwoOperandFunction(" log^n", "LogBasen", "Log base En");
}
void CalcWindow::ButtonDeltaPercentAction() {
  ArmTwoOperandFunction("    ∆%", "DeltaPercent", "Delta percent");
}

}  // namespace tessarine
