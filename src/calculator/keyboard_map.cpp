// The keyboard map: a key that no focused text field took becomes the same method
// that the keypad's button runs, after the button is shown going down (Push).
//
// Two tables, tried one after the other: the first by the key's text, case ignored,
// first match wins; the second by the key's code. No key matches both. There is
// deliberately no test of the tab, the mode, a disabled button or the error state:
// the keyboard reaches every key from anywhere, and digits work in the error state.
// How a Linux key event becomes this text is src/shell/key_chords.cpp's business.
#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

using Method = void (CalcWindow::*)();

// Which rows of the first table apply, by the state of the control key.
enum class When {
  Always,
  ControlUp,      // the plain digit
  ControlDown,    // the digit's second meaning while control is held
  NotAfterAbort,  // the period, unless it is the one of the abort chord
};

struct TextRow {
  std::string_view key;  // compared ignoring case
  When when;
  std::string_view push;  // the control shown going down
  Method method;          // nullptr: the control is a push button, whose Push runs it
};

constexpr TextRow kTextRows[] = {
    {"0", When::Always, "Button0", &CalcWindow::Button0Action},
    {"1", When::ControlUp, "Button1", &CalcWindow::Button1Action},
    {"1", When::ControlDown, "ButtonOneOverX", &CalcWindow::ButtonOneOverXAction},
    {"2", When::ControlUp, "Button2", &CalcWindow::Button2Action},
    {"2", When::ControlDown, "ButtonSquared", &CalcWindow::ButtonSquaredAction},
    {"3", When::ControlUp, "Button3", &CalcWindow::Button3Action},
    {"3", When::ControlDown, "ButtonCubed", &CalcWindow::ButtonCubedAction},
    {"4", When::Always, "Button4", &CalcWindow::Button4Action},
    {"5", When::ControlUp, "Button5", &CalcWindow::Button5Action},
    {"5", When::ControlDown, "CombinationsButton", &CalcWindow::CombinationsButtonAction},
    {"6", When::ControlUp, "Button6", &CalcWindow::Button6Action},
    {"6", When::ControlDown, "PermutationsButton", &CalcWindow::PermutationsButtonAction},
    {"7", When::Always, "Button7", &CalcWindow::Button7Action},
    {"8", When::Always, "Button8", &CalcWindow::Button8Action},
    {"9", When::Always, "Button9", &CalcWindow::Button9Action},
    {"+", When::Always, "ButtonPlus", &CalcWindow::ButtonPlusAction},
    {"*", When::Always, "ButtonTimes", &CalcWindow::ButtonTimesAction},
    {"x", When::Always, "ButtonTimes", &CalcWindow::ButtonTimesAction},
    {"/", When::Always, "ButtonDivide", &CalcWindow::ButtonDivideAction},
    {"-", When::Always, "ButtonMinus", &CalcWindow::ButtonMinusAction},
    {"=", When::Always, "ButtonEqual", &CalcWindow::ButtonEqualAction},
    {",", When::Always, "ButtonDecimal", &CalcWindow::ButtonDecimalAction},
    {".", When::NotAfterAbort, "ButtonDecimal", &CalcWindow::ButtonDecimalAction},
    {"c", When::Always, "ButtonClear", &CalcWindow::ButtonClearAction},
    {"±", When::Always, "ButtonChangeSign", &CalcWindow::ButtonChangeSignAction},
    {"e", When::Always, "ButtonExp", &CalcWindow::ButtonExpAction},
    {"p", When::Always, "ButtonPercent", &CalcWindow::ButtonPercentAction},
    {"n", When::Always, "ButtonFactorial", &CalcWindow::ButtonFactorialAction},
    {"l", When::Always, "Buttonln", &CalcWindow::ButtonlnAction},
    {"d", When::Always, "ButtonStatsDel", nullptr},
    {"r", When::Always, "ButtonRound", &CalcWindow::ButtonRoundAction},
    {"i", When::Always, "ButtonTenToTheX", &CalcWindow::ButtonTenToTheXAction},
    {"!", When::Always, "ButtonStatsInput", nullptr},
    {" ", When::Always, "ShowAdvancedFeaturesButton",
     &CalcWindow::ButtonShowAdvancedFeaturesAction},
    {"s", When::Always, "ButtonSciNotation", &CalcWindow::ButtonSciNotationAction},
};

// Where two codes stand, the first is the character's Mac Roman code and the second
// its Unicode code point, so that a keyboard delivering either form works.
constexpr int kNoCode = -1;

struct CodeRow {
  int code;
  int unicode;  // kNoCode when the row has one code
  std::string_view push;
  Method method;
};

constexpr CodeRow kCodeRows[] = {
    {3, 13, "ButtonEqual", &CalcWindow::ButtonEqualAction},        // keypad Enter, Return
    {27, kNoCode, "ButtonClear", &CalcWindow::ButtonClearAction},  // Esc, if UseESCforClear
    {31, kNoCode, "ButtonChangeSign", &CalcWindow::ButtonChangeSignAction},   // Control + hyphen
    {16, kNoCode, "Buttonpi", &CalcWindow::ButtonpiAction},                   // Control + P
    {18, kNoCode, "ButtonSquareRoot", &CalcWindow::ButtonSquareRootAction},   // Control + R
    {12, kNoCode, "ButtonLog", &CalcWindow::ButtonLogAction},                 // Control + L
    {1, kNoCode, "ButtonRandom", &CalcWindow::ButtonRandomAction},            // Control + A
    {185, 960, "ButtonDeltaPercent", &CalcWindow::ButtonDeltaPercentAction},  // Option + P
    {170, 8482, "ButtonSquareRoot", &CalcWindow::ButtonSquareRootAction},     // Option + 2
    {163, kNoCode, "ButtonCubeRoot", &CalcWindow::ButtonCubeRootAction},      // Option + 3
    {25, kNoCode, "ButtonXtotheY", &CalcWindow::ButtonXtotheYAction},         // Control + Y
    {180, 165, "ButtonNthRoot", &CalcWindow::ButtonNthRootAction},            // Option + Y
    {5, kNoCode, "ButtoneToTheX", &CalcWindow::ButtoneToTheXAction},          // Control + E
    {14, kNoCode, "ButtonLogBasen", &CalcWindow::ButtonLogBasenAction},       // Control + N
    {167, 223, "ButtonSine", &CalcWindow::ButtonSineAction},                  // Option + S
    {141, 231, "ButtonCosine", &CalcWindow::ButtonCosineAction},              // Option + C
    {160, 8224, "ButtonTangent", &CalcWindow::ButtonTangentAction},           // Option + T
    {234, 205, "ButtonArcSine", &CalcWindow::ButtonArcSineAction},            // Option + Shift + S
    {130, 199, "ButtonArcCosine", &CalcWindow::ButtonArcCosineAction},        // Option + Shift + C
    {255, 711, "ButtonArcTangent", &CalcWindow::ButtonArcTangentAction},      // Option + Shift + T
    // Option + D: the Push raises the delete and the method runs it again.
    {182, kNoCode, "ButtonStatsDel", &CalcWindow::ButtonStatsDelAction},
    {8, kNoCode, "ButtonClearEntry", &CalcWindow::ButtonClearEntryAction},  // Backspace
    {21, kNoCode, "ButtonRoundUp", &CalcWindow::ButtonRoundUpAction},       // Control + U
    {4, kNoCode, "ButtonRoundDown", &CalcWindow::ButtonRoundDownAction},    // Control + D
};

constexpr int kEscape = 27;

}  // namespace

bool CalcWindow::Event_KeyDown(const std::string& key) {
  const bool control = platform_.keyboard.AsyncControlKey();
  for (const TextRow& row : kTextRows) {
    if (!StrEq(key, row.key)) continue;
    if ((row.when == When::ControlUp && control) || (row.when == When::ControlDown && !control))
      continue;
    if (row.when == When::NotAfterAbort && LongCalculationAborted) {
      LongCalculationAborted = false;  // the period of the abort chord: swallowed
      break;
    }
    Push(Get(row.push));
    if (row.method) (this->*row.method)();
    break;
  }

  const int code = Asc(key);
  for (const CodeRow& row : kCodeRows) {
    if (code != row.code && code != row.unicode) continue;
    if (code == kEscape && !UseESCforClear) break;
    Push(Get(row.push));
    (this->*row.method)();
    break;
  }
  return false;
}

}  // namespace tessarine
