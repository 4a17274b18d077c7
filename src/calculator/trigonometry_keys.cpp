// The six trigonometric keys, hyperbolic while the control key is held, the
// radians/degrees pair, and the timer that relabels the keys while control is down.
#include "calculator/calc_window.hpp"
#include "runtime/arithmetic.hpp"

namespace tessarine {

namespace {
// Degrees in: the literal factor. Degrees out: 180 / Pi. They are not each
// other's reciprocals, and that is kept.
constexpr double kDegreesToRadians = 0.0174532925199433;
}  // namespace

bool CalcWindow::InRadians() {
  return Item("UnitsRadio", 0).IsDown();
}

// The endings differ from key to key; each is kept in its own order.
void CalcWindow::TrigEndingSineTangent() {
  UpdateDisplay();
  PlayCalculationSound();
  WriteToTape("     ◊");
  ClearDisplay2 = true;
}

void CalcWindow::TrigEndingArc() {
  PlayCalculationSound();
  UpdateDisplay();
  WriteToTape("     ◊");
  ClearDisplay2 = true;
}

void CalcWindow::ButtonSineAction() {
  const double x = Result;
  if (platform_.keyboard.AsyncControlKey()) {
    WriteToTape("  sinh");
    Result = (Exp(x) - Exp(-x)) / 2;
    SpeakButton("Hyperbolic Sine");
  } else {
    WriteToTape("   sin");
    Result = InRadians() ? Sin(x) : Sin(x * kDegreesToRadians);
    SpeakButton("Sine");
  }
  TrigEndingSineTangent();
}

void CalcWindow::ButtonCosineAction() {
  const double x = Result;
  if (platform_.keyboard.AsyncControlKey()) {
    WriteToTape("  cosh");
    Result = (Exp(x) + Exp(-x)) / 2;
    SpeakButton("Hyperbolic Cosine");
  } else {
    WriteToTape("   cos");
    Result = InRadians() ? Cos(x) : Cos(x * kDegreesToRadians);
    SpeakButton("Cosine");
  }
  UpdateDisplay();
  WriteToTape("     ◊");
  PlayCalculationSound();
  ClearDisplay2 = true;
}

void CalcWindow::ButtonTangentAction() {
  const double x = Result;
  if (platform_.keyboard.AsyncControlKey()) {
    WriteToTape("  tanh");
    Result = (Exp(x) - Exp(-x)) / (Exp(x) + Exp(-x));
    SpeakButton("Hyperbolic Tangent");
  } else {
    WriteToTape("   tan");
    Result = InRadians() ? Tan(x) : Tan(x * kDegreesToRadians);
    SpeakButton("Tangent");
  }
  TrigEndingSineTangent();
}

void CalcWindow::ButtonArcSineAction() {
  const double x = Result;
  if (platform_.keyboard.AsyncControlKey()) {
    WriteToTape(" asinh");
    Result = Log(x + Sqrt(Pow(x, 2) + 1));
    SpeakButton("Hyperbolic arc sine");
  } else {
    WriteToTape("  asin");
    Result = InRadians() ? ASin(x) : ASin(x) * 180 / Pi;
    SpeakButton("Arc sine");
  }
  TrigEndingArc();
}

void CalcWindow::ButtonArcCosineAction() {
  const double x = Result;
  if (platform_.keyboard.AsyncControlKey()) {
    WriteToTape(" acosh");
    Result = Log(x + Sqrt(Pow(x, 2) - 1));
    SpeakButton("Hyperbolic arc cosine");
  } else {
    WriteToTape("  acos");
    Result = InRadians() ? ACos(x) : ACos(x) * 180 / Pi;
    SpeakButton("Arc cosine");
  }
  TrigEndingArc();
}

void CalcWindow::ButtonArcTangentAction() {
  const double x = Result;
  if (platform_.keyboard.AsyncControlKey()) {
    WriteToTape(" atanh");
    Result = 0.5 * Log((1 + x) / (1 - x));
    SpeakButton("Hyperbolic arc tangent");
  } else {
    WriteToTape("  atan");
    Result = InRadians() ? ATan(x) : ATan(x) * 180 / Pi;
    SpeakButton("Arc tangent");
  }
  TrigEndingArc();
}

void CalcWindow::UnitsRadio_Action(int index) {
  SpeakButton(index != 0 ? "Degrees" : "Radians");
}

void CalcWindow::ToggleTrigButtonsTimer_Action() {
  if (Get("CalcTabSelector").Value() != 0) return;  // only on the first tab
  static constexpr const char* kKeys[] = {"ButtonSine",    "ButtonCosine",    "ButtonTangent",
                                          "ButtonArcSine", "ButtonArcCosine", "ButtonArcTangent"};
  static constexpr const char* kPlain[] = {"sin", "cos", "tan", "asin", "acos", "atan"};
  static constexpr const char* kHyperbolic[] = {"sinh", "cosh", "tanh", "asinh", "acosh", "atanh"};
  const bool control = platform_.keyboard.AsyncControlKey();
  if (control && TrigButtonNormalCaptions) {
    for (int i = 0; i < 6; ++i) Get(kKeys[i]).SetCaption(kHyperbolic[i]);
    TrigButtonNormalCaptions = false;
  } else if (!control && !TrigButtonNormalCaptions) {
    for (int i = 0; i < 6; ++i) Get(kKeys[i]).SetCaption(kPlain[i]);
    TrigButtonNormalCaptions = true;
  }
}

}  // namespace tessarine
